#include "rules/recovery.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "core/desktop.h"
#include "core/modCellora.h"
#include "rules/game_file.h"
#include "store/modCommon_File.h"

namespace cellora {

namespace {

constexpr int intMaxCopies = 9;
constexpr int intTicksBetweenWrites = 10;

std::vector<std::string> GetFiles(const std::string& strFolder) {
    std::vector<std::string> files = {JoinPath(strFolder, "recovery.clp")};
    for (int intCopy = 2; intCopy <= intMaxCopies; ++intCopy)
        files.push_back(JoinPath(strFolder, "recovery-" + std::to_string(intCopy) + ".clp"));
    return files;
}

bool AskToRestore(Game& game) {
    return game.desktop.ShowMessageBox(
               {.strTitle = "Restore Game?",
                .strText = "Cellora was closed before your last game was finished." +
                           std::string(strParagraphBreak) + "Do you want to go on with it?",
                .icon = MessageIcon::Question,
                .buttons = MessageButtons::YesNo}) == Answer::Yes;
}

} // namespace

Recovery::Recovery(FilePort& files, const std::string& strProgramFolder) : files_(files) {
    const std::vector<std::string> paths = GetFiles(strProgramFolder);
    for (const bool blnLeftBehind : {true, false}) {
        for (const std::string& strFile : paths) {
            if (FileExists(files_, strFile) == blnLeftBehind && TakeFile(strFile))
                return;
        }
    }
}

bool Recovery::TakeFile(const std::string& strFile) {
    auto lock = std::make_unique<FileLock>(files_, strFile);
    if (lock->TryLock(0) != LockOutcome::Locked)
        return false;
    lock_ = std::move(lock);
    strFile_ = strFile;
    return true;
}

void Recovery::Observe(Game& game) {
    if (!game.IsInPlay()) {
        if (blnWritten_)
            Remove();
        return;
    }
    const auto IsSeen = [](const Cell& cell, const SavedCell& seen) {
        return cell.blnGiven == seen.blnGiven && cell.strSolution == seen.strSolution &&
               cell.strEntry == seen.strEntry && cell.strNotes == seen.strNotes;
    };
    if (std::ranges::equal(game.cells, cells_, IsSeen))
        return;
    cells_ = TakeGame(game).cells;
    game.desktop.EnableTimer(Timer::tmrRecovery, true);
}

void Recovery::tmrRecovery_Timer(Game& game) {
    game.desktop.EnableTimer(Timer::tmrRecovery, false);
    Write(game);
}

void Recovery::CountTick(Game& game) {
    if (++intTicks_ % intTicksBetweenWrites == 0)
        Write(game);
}

void Recovery::Write(const Game& game) {
    if (strFile_.empty() || !game.IsInPlay())
        return;
    // What cannot be written now is tried again with the next change.
    if (!ReplaceFile(files_, strFile_, FormatSavedGame(TakeGame(game))))
        blnWritten_ = true;
}

void Recovery::OfferToRestore(Game& game) {
    if (strFile_.empty() || !FileExists(files_, strFile_))
        return;
    const ReadResult file = ReadWholeFile(files_, strFile_, lngMaxSavedGameBytes);
    const auto savedGame = file ? ParseSavedGame(file.bytes) : std::nullopt;
    if (!savedGame) {
        files_.Rename(strFile_, strFile_ + ".damaged");
    } else if (AskToRestore(game)) {
        blnWritten_ = true;
        ShowSavedGame(game, *savedGame);
        game.blnGameChanged = true;
    } else {
        files_.Remove(strFile_);
    }
}

void Recovery::Remove() {
    if (!strFile_.empty())
        files_.Remove(strFile_);
    blnWritten_ = false;
}

} // namespace cellora
