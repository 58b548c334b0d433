#pragma once

#include <memory>
#include <string>

#include "store/replace_file.h"
#include "store/saved_game.h"

namespace cellora {

struct Game;

/// Keeps the game in play on disk, so that it comes back after an end without a goodbye: in the
/// form of a saved game, "recovery.clp" in the program's folder. Each running copy of the program
/// has a file of its own ("recovery-2.clp" and so on), which it locks while it runs. Where no file
/// can be locked nothing is kept.
class Recovery final {
public:
    /// Takes the first free file that an earlier copy left behind, else the first free one.
    Recovery(FilePort& files, const std::string& strProgramFolder);

    /// To be called after every event. A change of the cells starts `tmrRecovery`, which then calls
    /// `tmrRecovery_Timer` a second later; a game that has ended removes the file.
    void Observe(Game& game);

    /// Writes the game in play.
    void tmrRecovery_Timer(Game& game);

    /// To be called with every tick of the game clock: every tenth writes the game in play.
    void CountTick(Game& game);

    /// To be called at the start, while the game has no file. Asks about a game that was left
    /// behind, and opens it as a changed game or removes it. A damaged file is put aside with
    /// ".damaged" behind its name, in place of an earlier one, without asking.
    void OfferToRestore(Game& game);

    /// The orderly end of the program.
    void Remove();

    /// The file this copy of the program writes; empty when nothing is kept.
    const std::string& file() const { return strFile_; }

private:
    bool TakeFile(const std::string& strFile);
    void Write(const Game& game);

    FilePort& files_;
    std::string strFile_;
    std::unique_ptr<FileLock> lock_;
    Numbered<SavedCell, intCellCount> cells_; ///< as last seen
    int intTicks_ = 0;
    bool blnWritten_ = false;
};

} // namespace cellora
