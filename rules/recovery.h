#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "store/background_writer.h"
#include "store/recovery_form.h"
#include "store/replace_file.h"

namespace cellora {

/// Keeps on disk what would be lost by an end without a goodbye: the game in play, a score that
/// waits for a name and a game that the player wanted saved and could not save. Each running copy
/// of the program has a place of its own, "copy-1" to "copy-9" in the hidden folder ".recovery" of
/// the program's folder, which it locks; where there is none nothing is kept. What is written here
/// is written away from the caller's thread.
class Recovery final {
public:
    /// `files` lives as long as the process: a write may go on when this object is gone.
    Recovery(FilePort& files, const std::string& strProgramFolder);
    /// Waits for what is still to be written, as `Wait`.
    ~Recovery();
    Recovery(const Recovery&) = delete;
    Recovery& operator=(const Recovery&) = delete;

    /// To be called after every event. A change of the cells or of the game's file starts
    /// `tmrRecovery`, which then calls `tmrRecovery_Timer` a second later; a score that waits is
    /// written before this returns. What needs no copy any more has its copy removed.
    void Observe(Game& game);

    /// Writes the game.
    void tmrRecovery_Timer(Game& game);

    /// To be called with every tick of the game clock: every tenth writes the game.
    void CountTick(Game& game);

    /// To be called at the start, before any game. Of the copies that were left behind, a game with
    /// a waiting score ends again; about others the player is asked until one is opened, as a
    /// changed game that still knows its file. No removes a copy; a closed question ends the asking
    /// and leaves it for the next start, and so does a copy that cannot be read or locked. A
    /// damaged copy is put aside as "copy-1.damaged", or "copy-1.damaged-2" and so on, and what is
    /// no copy is let alone. What an earlier version left behind under its names is offered with
    /// the rest.
    void OfferToRestore(Game& game);

    /// The orderly end of the program: the copy goes, unless changes are still owed to the player
    /// or a score waits. Nothing is written afterwards.
    void End(const Game& game);

    /// Waits until everything is written, for at most two seconds. False when that took longer:
    /// then the disk is given no more time before it has caught up.
    bool Wait();

    /// The file of this copy of the program; empty as long as it has none.
    std::string file() const { return place_ ? place_->strFile : std::string(); }

private:
    struct Place {
        Place(FilePort& files, const std::string& strPath)
            : strFile(strPath), lock(files, strPath) {}

        std::string strFile;
        FileLock lock;
    };

    enum class Offer { Opened, Done, Later };

    std::string GetFile(int intCopy) const;
    std::shared_ptr<Place> Lock(const std::string& strFile);
    bool TakePlace();
    void LeavePlace();
    void Write(const Game& game);
    void Remove();
    void Do(BackgroundWriter::Write fnWrite);

    Offer OfferCopy(Game& game, const std::shared_ptr<Place>& place);
    void TakeOverOldCopies();
    void PutAside(Game& game, const std::string& strFile, std::string_view bytes);

    FilePort& files_;
    std::string strFolder_;
    std::string strOldFolder_;
    std::shared_ptr<Place> place_;            ///< shared with the writes to it, which need its lock
    Numbered<SavedCell, intCellCount> cells_; ///< as last seen, and so are the next four
    std::string strGameFile_;
    WaitingScore score_;
    int intGames_ = 0;
    bool blnOwed_ = false;
    int intTicks_ = 0;
    bool blnWritten_ = false;
    bool blnEnded_ = false;
    bool blnHangs_ = false; ///< somebody has waited in vain
    BackgroundWriter writer_;
};

} // namespace cellora
