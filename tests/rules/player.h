#pragma once

#include <algorithm>
#include <deque>
#include <filesystem>
#include <functional>
#include <map>
#include <optional>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "rules/aids.h"
#include "rules/check.h"
#include "rules/clock.h"
#include "rules/completion.h"
#include "rules/cursor.h"
#include "rules/entry.h"
#include "rules/game_file.h"
#include "rules/hall_of_fame.h"
#include "rules/new_game.h"
#include "rules/notes.h"
#include "rules/options.h"
#include "rules/recovery.h"
#include "rules/selector.h"
#include "rules/start_up.h"
#include "store/system_files.h"
#include "tests/support/scripted_desktop.h"
#include "tests/support/temporary_folder.h"
#include "tests/support/view_text.h"

namespace cellora {

/// A game that is played by commands such as "click 3" and writes down what happens: each event of
/// the desktop in its order, and each line of the view that has changed by then.
class Player final {
public:
    Player() {
        game.strProgramFolder = game.settings.strGameFolder = folder.Path();
        game.lngRandomState = 20'260'401;
        game.settings.colors = MakeOptions(1).colors;
        desktop.fnWatch = [this] { WriteEvent(); };
        seen_ = DescribeAll();
    }

    /// What happens when that is done, a line each.
    std::string Play(const std::string& strCommand) {
        strTranscript_.clear();
        blnAfterEvent_ = false;
        Run(strCommand);
        return strTranscript_;
    }

    TemporaryFolder folder;
    ScriptedDesktop desktop;
    SystemFiles files;
    Game game{desktop, files};
    std::deque<std::string> during; ///< commands for the modal windows to come

private:
    /// The options numbered from a colour on, and the disappearing cursor when that is odd.
    static Settings MakeOptions(int intFirst) {
        Settings options;
        for (std::size_t n = 0; n < lngColorSlotCount; ++n)
            options.colors[n] = intFirst + static_cast<int>(n);
        options.intCursorOption = static_cast<std::int16_t>(intFirst % 2);
        return options;
    }

    static void Replace(std::string& strText, const std::string& strFrom,
                        const std::string& strTo) {
        for (std::size_t n = 0; (n = strText.find(strFrom, n)) != std::string::npos;)
            strText.replace(n, strFrom.size(), strTo);
    }

    // The words of the command, one after the other.

    int Int() {
        int intNumber = 0;
        words_ >> intNumber;
        return intNumber;
    }

    std::string Word() {
        std::string strWord;
        words_ >> strWord;
        return strWord;
    }

    std::string Rest() {
        std::string strRest;
        std::getline(words_ >> std::ws, strRest);
        return strRest;
    }

    std::string Path() { return folder.Path(Word()); }

    /// A cell and its text, in which blanks are written "_" and which may be missing.
    void SetText(std::string Cell::*strMember) {
        std::string& strText = game.cells[Int()].*strMember;
        strText = Word();
        std::ranges::replace(strText, '_', ' ');
    }

    // What the commands do.

    /// A board without clues, whose solution is always the same.
    void StartPuzzle() {
        game.phase = Phase::Playing;
        game.cells.fill({});
        for (int i = 1; i <= intCellCount; ++i)
            game.cells[i].strSolution =
                std::to_string(1 + (3 * (GetRow(i) % 3) + GetRow(i) / 3 + GetColumn(i)) % 9);
    }

    /// Fills every empty cell but one, wrong digits first, and checks the board.
    void FillEmptyCells(int intMistakes, int intLeftOut) {
        for (int i = 1; i <= intCellCount; ++i) {
            Cell& cell = game.cells[i];
            const char* const strWrong = cell.strSolution == "9" ? "1" : "9";
            if (i != intLeftOut && !cell.blnGiven && cell.strEntry.empty())
                cell.strEntry = intMistakes-- > 0 ? strWrong : cell.strSolution;
        }
        PerformCellCheck(game);
    }

    /// "|" is a line break.
    void WriteText(const std::string& strName) {
        std::string strText = Rest();
        Replace(strText, "|", "\r\n");
        folder.WriteBytes(strName, strText);
    }

    void Enlarge(const std::string& strName) {
        folder.WriteBytes(strName, folder.ReadBytes(strName) + std::string(1 << 20, '\n'));
    }

    void ListFiles() {
        std::set<std::string> names;
        for (const auto& entry : std::filesystem::recursive_directory_iterator(folder.Path()))
            names.insert(entry.path().lexically_relative(folder.Path()).generic_string());
        for (const std::string& strName : names)
            Report(strName);
    }

    void FillList(int intLevel) {
        HallOfFame hallOfFame = MakeEmptyHallOfFame();
        for (int i = 1; i <= 10; ++i)
            hallOfFame[intLevel][i] = {"Player " + std::to_string(i), 0, i, 0};
        folder.WriteBytes("hof.clh", FormatHallOfFame(hallOfFame));
    }

    void ListEntries(int intLevel) {
        LevelEntries entries;
        entries.fill({"as before", -1, -2, -3});
        ReadHallOfFame(game, intLevel, entries);
        for (const HallOfFameEntry& entry : entries)
            Report(entry.strName + ' ' + FormatEntryTime(entry));
    }

    void ReportRank() {
        Report(Text("rank ", GetRank(game), " of level ", GetCurrentLevel(game),
                    ", highest recorded level ", GetHighestRecordedLevel(game)));
    }

    void StartRecovery() { recovery_.emplace(files, folder.Path()); }

    // The transcript.

    void Run(const std::string& strCommand) {
        words_ = std::istringstream(strCommand);
        commands_.at(Word())();
        if (recovery_)
            recovery_->Wait();
        WriteChanges();
    }

    void Report(const std::string& strText) { Write("  = " + strText); }

    void Write(std::string strLine) {
        Replace(strLine, folder.Path(), "$");
#ifdef _WIN32
        Replace(strLine, "$\\", "$/");
        Replace(strLine, "\\copy", "/copy");
        Replace(strLine, "Path not found", "No such file or directory");
#endif
        Replace(strLine, "\r\n", " / ");
        strTranscript_ += strLine + '\n';
        blnAfterEvent_ = false;
    }

    void WriteEvent() {
        constexpr const char* aIcons[] = {"none", "question", "information", "exclamation"};
        constexpr const char* aButtons[] = {"ok", "yes no", "yes no cancel"};
        std::string strEvent = desktop.log.back();
        if (strEvent.starts_with("pick"))
            strEvent += " in " + desktop.requests.back().strFolder;
        if (blnAfterEvent_)
            strTranscript_.back() = ',';
        Write((blnAfterEvent_ ? " " : "  ") + strEvent);
        blnAfterEvent_ = true;
        if (strEvent.starts_with("box")) {
            const MessageBox& box = desktop.boxes.back();
            Write(Text("  [", aIcons[static_cast<std::size_t>(box.icon)], ", ",
                       aButtons[static_cast<std::size_t>(box.buttons)], "] ", box.strText));
        }
        WriteChanges();
        if (strEvent.starts_with("window") && !during.empty()) {
            const std::string strCommand = during.front();
            during.pop_front();
            Write("  meanwhile " + strCommand);
            Run(strCommand);
        }
    }

    void WriteChanges() {
        const std::vector<std::string> now = DescribeAll();
        for (std::size_t n = 0; n < now.size() && blnView_; ++n)
            if (now[n] != seen_[n])
                Write("    " + now[n]);
        seen_ = now;
    }

    std::vector<std::string> DescribeAll() const {
        std::vector<std::string> lines = Describe(MakeView(game));
        lines.push_back(Text("game:",
                             ListTrue({{"active", game.blnGameActive()},
                                       {"in play", game.IsInPlay()},
                                       {"changed", game.blnGameChanged},
                                       {"solved by the program", game.blnSolvedByComputer},
                                       {"loading", game.blnLoadingGame}}),
                             ", file ", game.strGameFile, ", folder ",
                             game.settings.strGameFolder));
        lines.push_back(Text("before: cursor ", game.intPrevCursorCell, ", number ",
                             game.intLastSelectedNumber));
        return lines;
    }

    const std::map<std::string, std::function<void()>> commands_ = {
        // The board, by hand and without a check.
        {"puzzle", [this] { StartPuzzle(); }},
        {"give", [this] { game.cells[Int()].blnGiven = true; }},
        {"solution", [this] { SetText(&Cell::strSolution); }},
        {"put", [this] { SetText(&Cell::strEntry); }},
        {"notes", [this] { SetText(&Cell::strNotes); }},
        {"fill", [this] { FillEmptyCells(Int(), 0); }},
        {"fillbut", [this] { FillEmptyCells(1, Int()); }},
        {"time", [this] { words_ >> game.lngHours >> game.lngMinutes >> game.lngSeconds; }},
        {"carry", [this] { DoTime(game); }},
        {"level", [this] { game.statistics.lblLevel = Rest(); }},
        {"visible", [this] { game.statistics.lblVisibleCells = Rest(); }},
        {"unchanged", [this] { game.blnGameChanged = false; }},
        {"gamefile", [this] { game.strGameFile = Path(); }},
        {"option", [this] { words_ >> game.settings.intCursorOption; }},
        {"statistics", [this] { game.settings.blnStatistics = false; }},
        {"fit", [this] { game.blnFitWindow = true; }},
        // The player's moves.
        {"click", [this] { CellClick(game, Int(), MouseButton::Left); }},
        {"rightclick", [this] { CellClick(game, Int(), MouseButton::Right); }},
        {"middleclick", [this] { CellClick(game, Int(), MouseButton::Middle); }},
        {"key",
         [this] {
             for (std::int16_t intKey = 0; words_ >> intKey;)
                 DoKeyDown(game, intKey);
         }},
        {"cursor", [this] { MoveCursor(game, Int()); }},
        {"number", [this] { picButton_MouseUp(game, Int(), false); }},
        {"rightnumber", [this] { picButton_MouseUp(game, Int(), true); }},
        {"row", [this] { ShowNumberRow(game, Word() == "on"); }},
        {"highlight", [this] { mnuHighlight_Click(game); }},
        {"note", [this] { mnuC_Click(game, Int()); }},
        {"remove", [this] { CandidateRemove(game, Int()); }},
        {"removeall", [this] { mnuRemoveAll_Click(game); }},
        {"errors", [this] { ToggleCellErrors(game); }},
        // Timers and commands.
        {"tick",
         [this] {
             for (int n = Int(); n > 0; --n)
                 tmr_Timer(game);
         }},
        {"idle", [this] { tmrCellWait_Timer(game); }},
        {"thin", [this] { tmrCell_Timer(game); }},
        {"pause", [this] { PauseGame(game); }},
        {"solvecell", [this] { SolveOneCell(game); }},
        {"solve", [this] { SolvePuzzle(game); }},
        {"toggle", [this] { ToggleSolutionView(game); }},
        {"start", [this] { StartNewGame(game, Rest()); }},
        {"new", [this] { NewGame(game); }},
        {"open", [this] { OpenGame(game); }},
        {"writegame", [this] { Report(WriteGameFile(game).value_or("written")); }},
        {"save", [this] { SaveGame(game); }},
        {"saveas", [this] { SaveGameAs(game); }},
        {"close", [this] { Report(MayClose(game) ? "closed" : "stays open"); }},
        {"options", [this] { ShowOptions(game); }},
        {"apply", [this] { ApplyOptions(game, MakeOptions(Int())); }},
        {"load", [this] { LoadMainWindow(game); }},
        {"tell", [this] { TellOfSettings(game); }},
        {"unload", [this] { UnloadMainWindow(game); }},
        // What happens next on the desktop.
        {"yes", [this] { desktop.answers.push_back(Answer::Yes); }},
        {"no", [this] { desktop.answers.push_back(Answer::No); }},
        {"cancel", [this] { desktop.answers.push_back(Answer::Cancel); }},
        {"pick", [this] { desktop.files.emplace_back(Path()); }},
        {"pickno", [this] { desktop.files.emplace_back(); }},
        {"during", [this] { during.push_back(Rest()); }},
        {"show", [this] { std::ranges::fill(seen_, ""); }},
        {"view", [this] { blnView_ = Word() == "on"; }},
        // Files.
        {"write", [this] { WriteText(Word()); }},
        {"enlarge", [this] { Enlarge(Word()); }},
        {"delete", [this] { std::filesystem::remove_all(Path()); }},
        {"folder", [this] { folder.MakeFolder(Word()); }},
        {"home", [this] { game.strProgramFolder = Path(); }},
        {"list", [this] { ListFiles(); }},
        {"read", [this] { Report(folder.ReadBytes(Word())); }},
        {"compare",
         [this] {
             const std::string strBytes = folder.ReadBytes(Word());
             const auto copy = ParseRecoveryCopy(strBytes);
             const bool blnSame = (copy ? FormatSavedGame(copy->savedGame) : strBytes) ==
                                  FormatSavedGame(TakeGame(game));
             Report(blnSame ? "the game" : "another game");
         }},
        // Best times.
        {"fill_list", [this] { FillList(Int()); }},
        {"enter", [this] { Report(SaveHallOfFameEntry(game, Rest()).value_or("written")); }},
        {"reset", [this] { Report(ResetHallOfFame(game).value_or("written")); }},
        {"complain", [this] { ShowHallOfFameError(game, Rest()); }},
        {"rank", [this] { ReportRank(); }},
        {"entries", [this] { ListEntries(Int()); }},
        // The recovery file. "crash" lets go of it without a goodbye.
        {"recovery", [this] { StartRecovery(); }},
        {"observe", [this] { recovery_->Observe(game); }},
        {"keep", [this] { recovery_->tmrRecovery_Timer(game); }},
        {"count", [this] { recovery_->CountTick(game); }},
        {"offer", [this] { recovery_->OfferToRestore(game); }},
        {"goodbye", [this] { recovery_->End(game); }},
        {"crash", [this] { recovery_.reset(); }},
        {"watch",
         [this] {
             recovery_->Observe(game);
             Report(folder.ReadBytes(".recovery/copy-1").find("waits=True") != std::string::npos
                        ? "the score waits"
                        : "no score waits");
         }},
        {"die",
         [this] {
             recovery_->Observe(game);
             recovery_.reset();
         }},
        {"enterdie",
         [this] {
             const std::string strName = Rest();
             NoteName(game, strName);
             recovery_->Observe(game);
             SaveHallOfFameEntry(game, strName);
             recovery_.reset();
         }},
    };

    std::istringstream words_;
    std::optional<Recovery> recovery_;
    std::vector<std::string> seen_;
    std::string strTranscript_;
    bool blnAfterEvent_ = false; ///< the last line is one of events, which takes more of them
    bool blnView_ = true;
};

} // namespace cellora
