#include "flow/game_file.h"

#include <random>

#include <gtest/gtest.h>

#include "flow/aids.h"
#include "flow/options.h"
#include "flow/start_up.h"
#include "play/check.h"
#include "play/cursor.h"
#include "play/entry.h"
#include "play/notes.h"
#include "play/selector.h"
#include "played_game.h"
#include "store/settings.h"

namespace cellora {
namespace {

using Log = std::vector<std::string>;

std::string Describe(const Game& game) {
    return DescribeGame(game) + "\n" + game.strGameFile + "\n" + game.strGameFolder;
}

std::string FormatGame(const Game& game) {
    return FormatSavedGame(TakeGame(game));
}

void Open(PlayedGame& played, const std::string& strFile) {
    played.game.blnGameChanged = false;
    played.desktop.files = {strFile};
    OpenGame(played.game);
}

/// The bytes of a game that was saved, opened by a newly started program and saved again there.
std::string SaveOpenSave(PlayedGame& played) {
    played.desktop.files = {played.folder.Path("first.clp")};
    SaveGameAs(played.game);
    PlayedGame opened;
    opened.game.mnuCellErrors.blnChecked = played.game.mnuCellErrors.blnChecked;
    Open(opened, played.folder.Path("first.clp"));
    EXPECT_EQ(opened.desktop.boxes.size() + opened.desktop.windows.size(), 0U);
    EXPECT_FALSE(opened.game.blnGameChanged);
    opened.game.strGameFile = played.folder.Path("second.clp");
    SaveGame(opened.game);
    return played.folder.ReadBytes("second.clp");
}

void Type(Game& game, int intCell, const std::string& strDigit) {
    game.intCursorCell = static_cast<std::int16_t>(intCell);
    DoKeyDown(game, static_cast<std::int16_t>(intKeyDigit1 + strDigit.front() - '1'));
}

void PlaySomeMoves(PlayedGame& played) {
    Game& game = played.game;
    const std::vector<int> cells = played.FindEmptyCells();
    Type(game, cells[0], game.cells[cells[0]].strSolution);
    Type(game, cells[1], played.GetWrongDigit(cells[1]));
    game.intCursorCell = static_cast<std::int16_t>(cells[2]);
    for (const int intDigit : {3, 5, 1})
        CandidateAdd(game, intDigit);
    played.SetTime(12, 34, 56);
}

struct State {
    const char* strName;
    void (*fnReach)(PlayedGame&);
};

constexpr State aStates[] = {
    {"new", [](PlayedGame&) {}},
    {"notes and mistakes", PlaySomeMoves},
    {"mistakes hidden",
     [](PlayedGame& played) {
         PlaySomeMoves(played);
         ToggleCellErrors(played.game);
     }},
    {"paused before",
     [](PlayedGame& played) {
         PlaySomeMoves(played);
         PauseGame(played.game);
     }},
    {"a cell solved by the program",
     [](PlayedGame& played) {
         PlaySomeMoves(played);
         played.desktop.answers = {Answer::Yes};
         SolveOneCell(played.game);
     }},
    {"finished well",
     [](PlayedGame& played) {
         played.FillEmptyCells(0);
         PerformCellCheck(played.game);
     }},
    {"solved by the program",
     [](PlayedGame& played) {
         const int intCell = played.FindEmptyCells().front();
         Type(played.game, intCell, played.game.cells[intCell].strSolution);
         played.desktop.answers = {Answer::Yes};
         SolvePuzzle(played.game);
     }},
};

TEST(GameFile, SaveOpenSaveGivesTheSameBytes) {
    for (const State& state : aStates) {
        SCOPED_TRACE(state.strName);
        PlayedGame played;
        played.Start(7);
        state.fnReach(played);
        const std::string strBytes = SaveOpenSave(played);
        EXPECT_EQ(FindDifference(strBytes, FormatGame(played.game)), "");
        EXPECT_TRUE(strBytes.find("\"Level 7\"\r\n") != std::string::npos);
    }
}

/// The mistakes view of an opened game shows the solution of every cell that is not wrong.
TEST(GameFile, OnlyTheViewChangesOfAGameFinishedWithMistakes) {
    PlayedGame played;
    played.Start(7);
    played.FillEmptyCells(2);
    PerformCellCheck(played.game);
    SavedGame expected = TakeGame(played.game);
    for (SavedCell& cell : expected.cells)
        cell.blnGiven = cell.strEntry.empty() || cell.strEntry == cell.strSolution;
    EXPECT_EQ(ParseSavedGame(SaveOpenSave(played)), expected);

    for (const char* strFile : {"second.clp", "first.clp"})
        Open(played, played.folder.Path(strFile));
    EXPECT_EQ(CountMistakes(played.game), 2);
    Open(played, played.folder.Path("second.clp"));
    EXPECT_EQ(played.game.lblSolvedByYou, "2");
    EXPECT_EQ(FindDifference(SaveOpenSave(played), FormatGame(played.game)), "");
}

TEST(GameFile, OpenRestoresWhatThePlayerSawAndKeepsTheRest) {
    PlayedGame played;
    played.Start(12);
    PlaySomeMoves(played);
    SaveOpenSave(played);
    const std::string strSaved = FormatGame(played.game);
    const auto aShaded = [&played] {
        std::string strShaded;
        for (const NumberButton& button : played.game.picButton)
            strShaded += button.blnShaded ? '1' : '0';
        return strShaded;
    };
    const std::string strShaded = aShaded();

    played.Start(3);
    Game& game = played.game;
    MoveCursor(game, 77);
    DoNumberSelect(game, 6);
    played.desktop.running.clear();
    game.mnuStatistics.blnChecked = false;
    played.desktop.log.clear();
    Open(played, played.folder.Path("first.clp"));
    EXPECT_EQ(FormatGame(game), strSaved);
    EXPECT_EQ(game.lblTime, "12:34:56");
    EXPECT_EQ(game.lblIncorrectCells, "1");
    EXPECT_EQ(aShaded(), strShaded);
    EXPECT_TRUE(game.blnGameActive);
    EXPECT_FALSE(game.blnLoadingGame);
    EXPECT_EQ(game.intCursorCell, 77);
    EXPECT_EQ(game.cells[77].outline.intWidth, 1);
    EXPECT_EQ(game.intSelectedNumber, 1);
    EXPECT_EQ(game.intLastSelectedNumber, 6);
    EXPECT_FALSE(game.picStatistics.blnVisible);
    EXPECT_TRUE(played.desktop.IsRunning(Timer::tmr));
    EXPECT_EQ(played.desktop.log,
              (Log{"hourglass", "tmrCellWait off", "tmrCellWait on", "tmr on", "arrow"}));

    ShowNumberRow(game, false);
    Open(played, played.folder.Path("first.clp"));
    EXPECT_EQ(game.intSelectedNumber, 0);
    EXPECT_EQ(game.intLastSelectedNumber, 1);
}

TEST(GameFile, AFinishedGameOpensQuietlyAndLocked) {
    for (const int intMistakes : {0, 3}) {
        for (const bool blnCellErrors : {true, false}) {
            PlayedGame played;
            played.Start(4);
            played.FillEmptyCells(intMistakes);
            played.game.blnLoadingGame = true; // ends it without a message
            PerformCellCheck(played.game);
            played.game.blnLoadingGame = false;
            SaveOpenSave(played);

            PlayedGame opened;
            Game& game = opened.game;
            game.mnuCellErrors.blnChecked = blnCellErrors;
            Open(opened, played.folder.Path("first.clp"));
            EXPECT_EQ(opened.desktop.log, (Log{"hourglass", "tmrCellWait off", "tmrCellWait on",
                                               "tmr off", "tmr on", "arrow"}));
            EXPECT_TRUE(game.picGrid.blnVisible);
            EXPECT_FALSE(game.picGrid.blnEnabled || game.picButtons.blnEnabled ||
                         game.mnuSolve.blnEnabled || game.mnuPause.blnEnabled);
            EXPECT_EQ(game.mnuCellErrors.blnChecked, blnCellErrors);
            EXPECT_EQ(game.cmdFinished.blnVisible, intMistakes > 0);
            const std::string strTime = game.lblTime;
            tmr_Timer(game);
            EXPECT_EQ(game.lblTime, strTime);
            if (intMistakes > 0) {
                EXPECT_EQ(game.cmdFinished.strCaption, strViewSolution);
                EXPECT_EQ(
                    std::ranges::count_if(
                        game.cells, [](const Cell& cell) { return cell.wrongMark.blnOpaque; }),
                    intMistakes);
            }
        }
    }
}

TEST(GameFile, AFailedOpenChangesNothing) {
    PlayedGame played;
    played.Start(9);
    PlaySomeMoves(played);
    const std::string strBytes = FormatGame(played.game);
    played.game.strGameFile = "mine.clp";
    played.game.strGameFolder = played.folder.Path();
    played.game.blnGameChanged = false;
    const std::string strBefore = Describe(played.game);
    const auto running = played.desktop.running;

    const auto ExpectRefused = [&](const std::string& strFile, const std::string& strTitle) {
        played.desktop.boxes.clear();
        played.desktop.log.clear();
        Open(played, strFile);
        ASSERT_EQ(played.desktop.log, (Log{"hourglass", "beep", "box " + strTitle, "arrow"}));
        ASSERT_EQ(played.desktop.boxes[0].icon, MessageIcon::Exclamation);
        ASSERT_EQ(Describe(played.game), strBefore);
        ASSERT_EQ(played.desktop.running, running);
    };
    ExpectRefused(played.folder.Path("missing.clp"), "File Doesn't Exist");
    EXPECT_EQ(played.desktop.boxes[0].strText, "The selected file does not exist\r\n\r\n"
                                               "To continue, please choose a valid file.");
    ExpectRefused(played.folder.MakeFolder("folder.clp"), "File Doesn't Exist");
    ExpectRefused(played.folder.WriteBytes("large.clp", strBytes + std::string(1 << 20, '\n')),
                  "Can't Open File");
    EXPECT_EQ(played.desktop.boxes[0].strText,
              "There was a problem opening the file.\r\n\r\nTo continue, please ensure that you "
              "are trying to open a Cellora format file.");
    for (std::size_t n = 0; n + 2 < strBytes.size(); n = strBytes.find('\n', n) + 1)
        ExpectRefused(played.folder.WriteBytes("cut.clp", strBytes.substr(0, n)),
                      "Can't Open File");
    EXPECT_EQ(ReadGamePath(GetSettingsFile(played.game)), "");
}

/// What must hold for every board, whatever file it came from.
void ExpectConsistent(const Game& game) {
    int intEmpty = 0;
    for (const Cell& cell : game.cells) {
        intEmpty += !cell.blnGiven && cell.strEntry.empty() ? 1 : 0;
        ASSERT_EQ(cell.wrongMark.blnOpaque, cell.IsIncorrect());
        ASSERT_TRUE(cell.blnEntryShown || cell.blnGiven);
    }
    ASSERT_EQ(game.lblCellsToSolve, std::to_string(intEmpty));
    ASSERT_EQ(game.lblIncorrectCells, std::to_string(CountMistakes(game)));
    ASSERT_EQ(game.picGrid.blnEnabled, intEmpty > 0);
    ASSERT_EQ(game.mnuPause.blnEnabled, intEmpty > 0);
    ASSERT_EQ(game.cmdFinished.blnVisible, intEmpty == 0 && CountMistakes(game) > 0);
    ASSERT_TRUE(game.blnGameActive && game.picGrid.blnVisible);
    ASSERT_FALSE(game.blnGameChanged || game.blnLoadingGame);
}

TEST(GameFile, ADamagedFileOpensToAConsistentBoardOrNotAtAll) {
    std::mt19937 random(413);
    PlayedGame played;
    played.game.strGameFolder = played.folder.Path();
    played.Start(15);
    PlaySomeMoves(played);
    const std::string strInPlay = FormatGame(played.game);
    played.FillEmptyCells(1);
    const std::string strFinished = FormatGame(played.game);
    int intOpened = 0;
    for (int n = 0; n < 2000; ++n) {
        SCOPED_TRACE(n);
        std::string strBytes = n % 2 == 0 ? strInPlay : strFinished;
        for (auto intChanges = 1 + random() % 3; intChanges != 0; --intChanges) {
            // Most bytes belong to the form; half of the changes look for a value.
            const std::size_t lngAt = random() % strBytes.size();
            const std::size_t lngDigit =
                random() % 2 == 0 ? lngAt : strBytes.find_first_of("123456789", lngAt);
            strBytes[lngDigit == std::string::npos ? lngAt : lngDigit] =
                static_cast<char>(random());
        }
        played.desktop.boxes.clear();
        played.game.blnGameChanged = false;
        const std::string strBefore = Describe(played.game);
        Open(played, played.folder.WriteBytes("damaged.clp", strBytes));
        if (played.desktop.boxes.empty()) {
            ++intOpened;
            ASSERT_NO_FATAL_FAILURE(ExpectConsistent(played.game));
        } else {
            ASSERT_EQ(played.desktop.boxes[0].strTitle, "Can't Open File");
            ASSERT_EQ(Describe(played.game), strBefore);
        }
    }
    EXPECT_GT(intOpened, 200);
}

void UseTheBoard(Game& game) {
    for (int i = 1; i <= intCellCount; ++i) {
        for (const MouseButton button : {MouseButton::Left, MouseButton::Right})
            CellClick(game, i, button);
        mnuC_Click(game, 5);
        mnuA_Click(game, 1);
        DoKeyDown(game, intKeyDelete);
    }
    for (std::int16_t intKey = 0; intKey < 256; ++intKey)
        DoKeyDown(game, intKey);
    mnuRemoveAll_Click(game);
    for (int i = 1; i <= intEraser; ++i)
        picButton_MouseUp(game, i, true);
    mnuHighlight_Click(game);
    for (const bool blnShow : {false, true})
        ShowNumberRow(game, blnShow);
    for (const auto fnCommand : {tmrCellWait_Timer, tmrCell_Timer, ToggleCellErrors})
        fnCommand(game);
}

void UseTheCommands(PlayedGame& played) {
    Game& game = played.game;
    for (int n = 0; n < 3; ++n)
        tmr_Timer(game);
    PauseGame(game);
    ShowOptions(game);
    ApplyOptions(game, ReadOptions(game));
    for (const auto fnCommand : {SolveOneCell, SolveOneCell, SolvePuzzle}) {
        played.desktop.answers = {Answer::Yes};
        fnCommand(game);
    }
    GetRank(game);
    SaveHallOfFameEntry(game, "Player");
    for (int n = 0; n < 2; ++n)
        ToggleSolutionView(game);
    UnloadMainWindow(game);
}

TEST(GameFile, EveryCommandLivesWithWhateverAFileHolds) {
    PlayedGame played;
    played.Start(20);
    PlaySomeMoves(played);
    const SavedGame good = TakeGame(played.game);
    for (const std::string& strText :
         {std::string(), std::string(" "), std::string("0"), std::string("-5"),
          std::string("Level 31"), std::string("99999999999999999999"), std::string("2147483647"),
          std::string("x"), std::string("12"), std::string("\"\xFF\0\r", 4),
          std::string(4000, '7')}) {
        for (const std::int32_t lngCounter : {2147483647, -2147483647 - 1, 60}) {
            SCOPED_TRACE(strText.substr(0, 20) + ' ' + std::to_string(lngCounter));
            SavedGame hostile = good;
            hostile.lngHours = hostile.lngMinutes = hostile.lngSeconds = lngCounter;
            hostile.strLevel = hostile.strVisibleCells = hostile.strSolvedByYou =
                hostile.strCellsToSolve = hostile.strIncorrectCells = strText;
            for (int i = 2; i <= intCellCount; i += 3)
                hostile.cells[i] = {i % 2 == 0, strText, strText, strText};
            Open(played, played.folder.WriteBytes("hostile.clp", FormatSavedGame(hostile)));
            ASSERT_EQ(played.game.strGameFile, played.folder.Path("hostile.clp"));
            ASSERT_TRUE(played.game.lblLevel == strText);
            UseTheCommands(played);
            Open(played, played.folder.Path("hostile.clp"));
            UseTheBoard(played.game);
            SaveGame(played.game);
            const std::string strSaved = FormatGame(played.game);
            ASSERT_EQ(FindDifference(played.folder.ReadBytes("hostile.clp"), strSaved), "");
            ASSERT_TRUE(ParseSavedGame(strSaved));
        }
    }
}

} // namespace
} // namespace cellora
