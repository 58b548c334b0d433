#include "rules/recovery.h"

#include <algorithm>
#include <chrono>
#include <optional>
#include <utility>

#include "core/desktop.h"
#include "core/modCellora.h"
#include "rules/completion.h"
#include "rules/game_file.h"
#include "rules/hall_of_fame.h"
#include "store/modCommon_File.h"
#include "store/program_folder.h"

namespace cellora {

namespace {

constexpr int intMaxCopies = 9;
constexpr int intTicksBetweenWrites = 10;
constexpr std::chrono::milliseconds msLongestWait{2000};

bool IsOwed(const Game& game) {
    return game.blnGameActive() && game.blnGameChanged && game.blnSaveOwed;
}

bool NeedsCopy(const Game& game) {
    return game.IsInPlay() || game.score.blnWaits || IsOwed(game);
}

Answer AskToRestore(Game& game) {
    return game.desktop.ShowMessageBox(
        {.strTitle = "Restore Game?",
         .strText = "Cellora was closed before your last game was finished or saved." +
                    std::string(strParagraphBreak) +
                    "Do you want to go on with it? No gives it up; Cancel asks again at the next "
                    "start.",
         .icon = MessageIcon::Question,
         .buttons = MessageButtons::YesNoCancel});
}

void TellOfCopy(Game& game, const std::string& strReason, std::string_view strAdvice) {
    game.desktop.Announce("Restore Game",
                          "A game that was kept for you cannot be restored. " + strReason +
                              std::string(strParagraphBreak) + std::string(strAdvice),
                          MessageIcon::Exclamation);
}

/// Without the times of its level a waiting score would seem to have no place among them. False
/// when they cannot be read, which the player is told.
bool ReadOtherTimes(Game& game, const RecoveryCopy& copy, LevelEntries& entries) {
    const auto strReason = ReadHallOfFame(game, copy.savedGame.statistics.GetLevel(), entries);
    if (strReason)
        TellOfCopy(game, *strReason, "The next start tries again.");
    return !strReason;
}

/// The entries are those of the game's level when a score waits.
void Restore(Game& game, const RecoveryCopy& copy, const LevelEntries& entries) {
    game.score = copy.score;
    ShowSavedGame(game, copy.savedGame);
    game.strGameFile = copy.strGameFile;
    game.blnGameChanged = true;
    game.blnSaveOwed = game.phase == Phase::Finished && !copy.score.blnWaits;
    if (copy.score.blnWaits)
        EndWaitingGame(game, entries);
}

} // namespace

Recovery::Recovery(FilePort& files, const std::string& strProgramFolder)
    : files_(files), strFolder_(JoinPath(strProgramFolder, ".recovery")),
      strOldFolder_(strProgramFolder) {}

Recovery::~Recovery() {
    Wait();
}

bool Recovery::Wait() {
    blnHangs_ = !writer_.Wait(blnHangs_ ? std::chrono::milliseconds() : msLongestWait);
    return !blnHangs_;
}

void Recovery::Do(BackgroundWriter::Write fnWrite) {
    // Before it waits for this one as well.
    blnHangs_ = blnHangs_ && !writer_.Wait({});
    writer_.Do(place_->strFile, std::move(fnWrite));
}

std::string Recovery::GetFile(int intCopy) const {
    return JoinPath(strFolder_, "copy-" + std::to_string(intCopy));
}

std::shared_ptr<Recovery::Place> Recovery::Lock(const std::string& strFile) {
    auto place = std::make_shared<Place>(files_, strFile);
    return place->lock.TryLock(0) == LockOutcome::Locked ? place : nullptr;
}

bool Recovery::TakePlace() {
    if (place_ == nullptr)
        files_.MakeFolder(strFolder_);
    for (int intCopy = 1; intCopy <= intMaxCopies && place_ == nullptr; ++intCopy) {
        const std::string strFile = GetFile(intCopy);
        if (IsMissing(files_, strFile))
            place_ = Lock(strFile);
        // Another copy of the program may have come and gone in between.
        if (place_ != nullptr && !IsMissing(files_, strFile))
            place_ = nullptr;
    }
    return place_ != nullptr;
}

/// The copy stays as it is, and this run goes on in another place.
void Recovery::LeavePlace() {
    place_ = nullptr;
    blnWritten_ = false;
}

void Recovery::Observe(Game& game) {
    if (blnEnded_)
        return;
    if (std::exchange(intGames_, game.intGames) != game.intGames && blnOwed_)
        LeavePlace();
    const bool blnWasOwed = std::exchange(blnOwed_, IsOwed(game));
    const bool blnScoreIsNew = std::exchange(score_, game.score) != game.score;
    if (!NeedsCopy(game))
        return Remove();
    if (blnScoreIsNew || (blnOwed_ && !blnWasOwed))
        Write(game);
    if (blnScoreIsNew)
        Wait();
    const auto IsSeen = [](const Cell& cell, const SavedCell& seen) {
        return cell.blnGiven == seen.blnGiven && cell.strSolution == seen.strSolution &&
               cell.strEntry == seen.strEntry && cell.strNotes == seen.strNotes;
    };
    if (std::exchange(strGameFile_, game.strGameFile) == game.strGameFile &&
        std::ranges::equal(game.cells, cells_, IsSeen))
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
    if (blnEnded_ || !NeedsCopy(game) || !TakePlace())
        return;
    blnWritten_ = true;
    // What cannot be written now is tried again with the next change.
    Do([&files = files_, place = place_,
        bytes = FormatRecoveryCopy({TakeGame(game), game.strGameFile, game.score})] {
        ReplaceFile(files, place->strFile, bytes);
    });
}

void Recovery::Remove() {
    if (std::exchange(blnWritten_, false))
        Do([&files = files_, place = place_] { files.Remove(place->strFile); });
}

void Recovery::End(const Game& game) {
    blnWritten_ = place_ != nullptr; // what could not be removed before is tried once more
    if (game.score.blnWaits || IsOwed(game))
        Write(game);
    else
        Remove();
    blnEnded_ = true;
    // Else the system lets go of the lock when the write has ended.
    if (!Wait())
        return;
    place_ = nullptr;
    files_.Remove(strFolder_); // where nothing is in it
}

void Recovery::OfferToRestore(Game& game) {
    RemoveOldTemporaries(files_, strFolder_);
    TakeOverOldCopies();
    for (int intCopy = 1; intCopy <= intMaxCopies; ++intCopy) {
        const std::string strFile = GetFile(intCopy);
        if (IsMissing(files_, strFile))
            continue;
        const auto place = std::make_shared<Place>(files_, strFile);
        const LockOutcome outcome = place->lock.TryLock(0);
        if (outcome == LockOutcome::Failed && FileExists(files_, strFile))
            TellOfCopy(game,
                       "The folder of the file \"" + strFile +
                           "\" cannot be written, or its disk is full.",
                       "The next start tries again.");
        if (outcome == LockOutcome::Locked && OfferCopy(game, place) != Offer::Done)
            return;
    }
}

Recovery::Offer Recovery::OfferCopy(Game& game, const std::shared_ptr<Place>& place) {
    const ReadResult file = ReadWholeFile(files_, place->strFile, lngMaxSavedGameBytes);
    if (file.outcome == ReadOutcome::Failed)
        TellOfCopy(game, file.strReason, "The next start tries again.");
    if (!file)
        return Offer::Done;
    const auto copy = ParseRecoveryCopy(file.bytes);
    if (!copy) {
        if (!ParseSavedGame(file.bytes)) // else a player put it there
            PutAside(game, place->strFile, file.bytes);
        return Offer::Done;
    }
    LevelEntries entries;
    if (copy->score.blnWaits && !ReadOtherTimes(game, *copy, entries))
        return Offer::Done;
    const Answer answer = copy->score.blnWaits ? Answer::Yes : AskToRestore(game);
    if (answer == Answer::Cancel)
        return Offer::Later;
    if (answer == Answer::No) {
        files_.Remove(place->strFile);
        return Offer::Done;
    }
    place_ = place;
    blnWritten_ = true;
    Restore(game, *copy, entries);
    return Offer::Opened;
}

void Recovery::PutAside(Game& game, const std::string& strFile, std::string_view bytes) {
    const auto aside = FindPlaceAside(files_, strFile, bytes);
    const bool blnDone = aside && !files_.Rename(strFile, aside->strPath);
    TellOfCopy(game, "It is damaged.",
               blnDone ? "It was put aside as \"" + aside->strPath + "\"."
                       : "It could not be put aside; the next start tries again.");
}

/// Earlier versions kept "recovery.clp" to "recovery-9.clp" in the program's folder itself. Only
/// the lock that such a version left behind tells its copy from a game that a player saved under
/// that name, so the copy is copied, and it is the lock that goes and never the file.
void Recovery::TakeOverOldCopies() {
    for (int intCopy = 1; intCopy <= intMaxCopies; ++intCopy) {
        const std::string strName =
            intCopy == 1 ? "recovery.clp" : "recovery-" + std::to_string(intCopy) + ".clp";
        const std::string strFile = JoinPath(strOldFolder_, strName);
        if (IsMissing(files_, strFile + ".lock"))
            continue;
        const ReadResult file = ReadWholeFile(files_, strFile, lngMaxSavedGameBytes);
        const auto savedGame = file ? ParseSavedGame(file.bytes) : std::nullopt;
        if (!savedGame || !TakePlace())
            continue;
        // An earlier version that runs beside this one goes on with its copy.
        if (!ReplaceFile(files_, place_->strFile, FormatRecoveryCopy({*savedGame, {}, {}})) &&
            Lock(strFile) == nullptr)
            files_.Remove(place_->strFile);
        place_ = nullptr;
    }
}

} // namespace cellora
