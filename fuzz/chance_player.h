#pragma once

#include <algorithm>
#include <filesystem>
#include <optional>
#include <random>
#include <string>
#include <string_view>
#include <utility>

#include "core/levels.h"
#include "core/modCellora.h"
#include "fuzz/fuzzing.h"
#include "rules/aids.h"
#include "rules/clock.h"
#include "rules/completion.h"
#include "rules/cursor.h"
#include "rules/entry.h"
#include "rules/game_file.h"
#include "rules/hall_of_fame.h"
#include "rules/new_game.h"
#include "rules/notes.h"
#include "rules/recovery.h"
#include "rules/start_up.h"
#include "rules/view.h"
#include "store/modCommon_File.h"
#include "store/system_files.h"
#include "tests/support/idle_desktop.h"
#include "tests/support/temporary_folder.h"

namespace cellora {

/// Goes on where a reader has ended: plays the program, without its windows, as chance has it, and
/// requires what must hold whatever the files held. The same input makes the same moves.
class ChancePlayer final : public IdleDesktop {
    /// A file may name any path of this computer; nothing is written but in the folder.
    struct FolderFiles final : SystemFiles {
        std::error_code Create(const std::string& strPath, const std::string& strLike,
                               FileHandle& file) override {
            const auto path = std::filesystem::path(strPath).lexically_normal().string();
            return path.starts_with(folder.Path() + '/')
                       ? SystemFiles::Create(strPath, strLike, file)
                       : std::make_error_code(std::errc::permission_denied);
        }
    };

public:
    explicit ChancePlayer(std::string_view input) : random_(std::hash<std::string_view>{}(input)) {
        for (const auto& entry : std::filesystem::directory_iterator(folder.Path()))
            std::filesystem::remove_all(entry);
    }

    /// A number from 0 to `intCount` - 1.
    int Draw(std::size_t intCount) { return static_cast<int>(random_() % intCount); }

    /// Starts the program afresh; one that runs is gone without a goodbye. The answer is for the
    /// games that are offered.
    void Start(Answer answer = Answer::Yes) {
        recovery_.reset();
        game.emplace(*this, files);
        game->strProgramFolder = folder.Path();
        recovery_.emplace(files, folder.Path());
        answer_ = answer;
        intOffers = intComplaints = intNamesAsked = 0;
        if (IsMissing(files, folder.Path(strTimes)))
            folder.WriteBytes(strTimes, FormatHallOfFame(MakeEmptyHallOfFame()));
        LoadMainWindow(*game);
        recovery_->OfferToRestore(*game);
        Observe();
    }

    /// Expects best times that are in form.
    void Play(int intMoves) {
        for (; intMoves > 0; --intMoves) {
            try {
                blnMayDie_ = true;
                Draw(6) == 0 ? EndAndStart() : MakeMove();
            } catch (const Killed& killed) {
                blnMayDie_ = false;
                Start();
                Require(intOffers > 0 || (intNamesAsked == 0) == killed.blnEntered,
                        "a score that waits asks for its name until it is entered");
            }
        }
    }

    /// What the window does after each event.
    void Observe() {
        MakeView(*game);
        recovery_->Observe(*game);
    }

    /// Types the right digit into every cell, now and then with mistakes.
    void FillBoard() {
        const bool blnMistakes = Draw(3) == 0;
        for (int i = 1; i <= intCellCount && game->IsInPlay(); ++i) {
            const int intDigit = game->cells[i].GetSolutionDigit();
            const bool blnGuess = intDigit == 0 || (blnMistakes && Draw(10) == 0);
            MoveCursor(*game, i);
            PressKey(blnGuess ? Draw(9) + intKeyDigit1 : intDigit - 1 + intKeyDigit1);
        }
    }

    /// Saves and opens again.
    void Save() {
        if (!game->blnGameActive())
            return;
        game->blnGameChanged = true; // until it is saved
        SaveGame(*game);
        if (game->blnGameChanged)
            return;
        const SavedGame saved = TakeGame(*game);
        const bool blnInPlay = game->IsInPlay();
        strPickedFile = game->strGameFile;
        Require(ParseSavedGame(folder.ReadBytes(*strPickedFile)) == saved,
                "a saved game is what was on the board");
        OpenGame(*game);
        Require(IsOnBoard(saved) && game->IsInPlay() == blnInPlay, "a saved game opens as it was");
    }

    static constexpr const char* strTimes = "hof.clh";
    static inline const TemporaryFolder folder;
    static inline FolderFiles files;
    std::optional<Game> game;
    // Since the start:
    int intOffers = 0;     ///< the games that were offered
    int intComplaints = 0; ///< those of which the player was told that they cannot be restored
    int intNamesAsked = 0; ///< how often a score asked for its name

private:
    /// The end of the program while the name of a score is asked for.
    struct Killed {
        bool blnEntered = false; ///< the score stands among the best times already
    };

    /// Which cells show their solution changes with the views of a finished game.
    bool IsOnBoard(const SavedGame& saved) {
        const auto IsSame = [](const Cell& cell, const SavedCell& other) {
            return cell.strSolution == other.strSolution && cell.strEntry == other.strEntry &&
                   cell.strNotes == other.strNotes;
        };
        return std::ranges::equal(game->cells, saved.cells, IsSame);
    }

    void MakeMove() {
        static constexpr void (ChancePlayer::*aMoves[])() = {
            &ChancePlayer::PressKeys, &ChancePlayer::TakeNote, &ChancePlayer::ChooseCommand,
            &ChancePlayer::FillBoard, &ChancePlayer::Save};
        const bool blnLocked = game->phase == Phase::Finished;
        const int intGames = game->intGames;
        const SavedGame before = TakeGame(*game);
        (this->*aMoves[Draw(std::size(aMoves))])();
        Observe();
        const auto IsEmpty = [](const Cell& cell) {
            return !cell.blnGiven && cell.strEntry.empty();
        };
        Require(!game->blnGameActive() ||
                    game->IsInPlay() == std::ranges::any_of(game->cells, IsEmpty),
                "a game is in play while a cell is empty");
        Require(!blnLocked || game->intGames != intGames ||
                    (IsOnBoard(before) && game->lngSeconds == before.lngSeconds),
                "a finished game is locked");
    }

    void PressKey(int intKeyCode) { DoKeyDown(*game, static_cast<std::int16_t>(intKeyCode)); }

    void PressKeys() {
        for (int n = Draw(20); n > 0; --n)
            PressKey(Draw(2) == 0 ? intKeyDigit1 + Draw(9) : Draw(120));
    }

    void TakeNote() {
        const int intCell = Draw(intCellCount) + 1;
        if (game->phase != Phase::Playing || game->cells[intCell].blnGiven)
            return;
        CellClick(*game, intCell, MouseButton::Right);
        if (const int intDigit = Draw(9) + 1; MakeCellPopup(*game).mnuC[intDigit].blnVisible)
            mnuC_Click(*game, intDigit);
    }

    void ChooseCommand() {
        // The first can always be chosen, one more with a game, the last while it is played.
        static constexpr void (*aCommands[])(Game&) = {
            NewGame, OpenGame, ResetTopTen, SaveGameAs, PauseGame, SolveOneCell, SolvePuzzle};
        if (game->cmdFinished != FinishButton::Hidden)
            ToggleSolutionView(*game);
        aCommands[Draw(game->phase == Phase::Playing ? 7 : game->blnGameActive() ? 4 : 3)](*game);
    }

    static void ResetTopTen(Game& game) {
        Require(!ResetHallOfFame(game) && GetHighestRecordedLevel(game) == 0,
                "nothing is left of best times that were reset");
    }

    /// An end, with or without a goodbye, and the next start.
    void EndAndStart() {
        bool blnKept = game->IsInPlay();
        recovery_->tmrRecovery_Timer(*game);
        if (Draw(2) == 0 && MayClose(*game)) {
            Observe();
            UnloadMainWindow(*game);
            recovery_->End(*game);
            blnKept = game->blnGameActive() && game->blnGameChanged && game->blnSaveOwed;
        }
        Observe();
        recovery_->Wait();
        std::optional<RecoveryCopy> offered;
        for (int n = 9; n >= 1; --n) {
            const std::string strFile = folder.Path(".recovery/copy-" + std::to_string(n));
            const ReadResult file = ReadWholeFile(files, strFile, lngMaxSavedGameBytes);
            const auto copy = ParseRecoveryCopy(file.bytes);
            blnKept = blnKept && !(copy && IsOnBoard(copy->savedGame));
            offered = copy ? copy : offered;
        }
        Require(!blnKept, "what can be lost is on the disk");
        Start();
        Require(!offered || offered->score.blnWaits ||
                    (intOffers == 1 && IsOnBoard(offered->savedGame)),
                "what was left behind is offered");
    }

    Answer ShowMessageBox(const MessageBox& box) override {
        constexpr Answer aAnswers[] = {Answer::Ok, Answer::Yes, Answer::No, Answer::Cancel};
        if (box.strTitle == "Restore Game?" && ++intOffers > 0)
            return answer_;
        intComplaints += box.strTitle == "Restore Game" ? 1 : 0;
        LetTimePass();
        return aAnswers[box.buttons == MessageButtons::Ok ? 0 : 1 + Draw(2)];
    }

    void ShowModal(ModalWindow window) override {
        LetTimePass();
        if (window == ModalWindow::frmNew)
            StartNewGame(*game, GetLevelName(Draw(intLevelCount) + 1));
        if (window == ModalWindow::frmEnterName)
            EnterName("Player " + std::to_string(Draw(3)));
    }

    void EnableTimer(Timer timer, bool blnEnabled) override {
        blnClockRuns_ = timer == Timer::tmr ? blnEnabled : blnClockRuns_;
    }

    void LetTimePass() {
        Observe();
        for (int n = Draw(12); n > 0 && blnClockRuns_; --n) {
            recovery_->CountTick(*game);
            tmr_Timer(*game);
        }
    }

    std::optional<std::string> PickFile(const FileRequest&) override {
        constexpr const char* aNames[] = {"own.clp", "game.clp", "gone/own.clp"};
        if (strPickedFile || Draw(4) == 0)
            return std::exchange(strPickedFile, std::nullopt);
        return folder.Path(aNames[Draw(std::size(aNames))]);
    }

    void EnterName(const std::string& strName) {
        const HallOfFameEntry entry{strName, game->lngHours, game->lngMinutes, game->lngSeconds};
        const int intRank = GetRank(*game);
        ++intNamesAsked;
        if (blnMayDie_ && Draw(3) == 0)
            throw Killed{};
        const bool blnSorted = IsSorted(ReadTimes());
        NoteName(*game, strName);
        Observe();
        Require(!SaveHallOfFameEntry(*game, strName), "a score can be entered");
        const LevelEntries entries = ReadTimes();
        Require(GetLevelName(GetCurrentLevel(*game)) != game->statistics.lblLevel ||
                    (entries[intRank] == entry && IsSorted(entries) >= blnSorted),
                "a score stands at its rank and leaves the others sorted");
        if (blnMayDie_ && Draw(3) == 0)
            throw Killed{std::ranges::count(entries, entry) > game->score.intEqual};
    }

    LevelEntries ReadTimes() {
        LevelEntries entries;
        ReadHallOfFame(*game, GetCurrentLevel(*game), entries);
        return entries;
    }

    static bool IsSorted(const LevelEntries& entries) {
        return std::ranges::is_sorted(entries, {}, [](const HallOfFameEntry& entry) {
            return GetTimeInSeconds(entry.lngHours, entry.lngMinutes, entry.lngSeconds);
        });
    }

    std::mt19937_64 random_;
    std::optional<Recovery> recovery_;
    Answer answer_ = Answer::Yes;
    bool blnMayDie_ = false;
    bool blnClockRuns_ = false;
};

} // namespace cellora
