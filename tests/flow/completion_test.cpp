#include "flow/completion.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "play/check.h"
#include "played_game.h"

namespace cellora {
namespace {

constexpr const char* aTitles[] = {
    "Good Effort!",           "Nice try!",        "Better Luck Next Time!",
    "Better Try Again!",      "Could Do Better!", "Not Even Close!",
    "You Need More Practice", "That Was Awful!",  "My Cat Could Do Better!"};

std::string GetTitle(int intMistakes) {
    return intMistakes <= 9 ? aTitles[intMistakes - 1] : "The Worst Sudoku Player Ever!";
}

int CountMarks(const Game& game) {
    return static_cast<int>(std::ranges::count_if(
        game.cells, [](const Cell& cell) { return cell.wrongMark.blnOpaque; }));
}

/// The seven things that follow the end of a game, 1 for enabled.
std::string DescribeLock(const Game& game) {
    std::string strText;
    for (const bool blnEnabled :
         {game.picGrid.blnEnabled, game.picButtons.blnEnabled, game.mnuCellErrors.blnEnabled,
          game.mnuSolveCell.blnEnabled, game.mnuSolve.blnEnabled, game.mnuPause.blnEnabled,
          game.tbrMain.blnButtonEnabled[10]})
        strText += blnEnabled ? '1' : '0';
    return strText;
}

void ExpectLockedBoard(const PlayedGame& played) {
    const Game& game = played.game;
    EXPECT_EQ(DescribeLock(game), "0000000");
    EXPECT_FALSE(played.desktop.IsRunning(Timer::tmr));
    EXPECT_TRUE(game.picGrid.blnVisible && game.picButtons.blnVisible && game.blnGameActive);
    EXPECT_TRUE(game.mnuSave.blnEnabled && game.mnuSaveAs.blnEnabled && game.mnuPrint.blnEnabled);
    EXPECT_TRUE(game.tbrMain.blnButtonEnabled[4] && game.tbrMain.blnButtonEnabled[6]);
    EXPECT_TRUE(game.mnuStatistics.blnEnabled && game.mnuNumberSelector.blnEnabled);
    EXPECT_EQ(game.lblCellsToSolve, "0");
}

TEST(DoCellCount, CountsRightAndWrongEntriesAlikeWhileACellIsEmpty) {
    PlayedGame played;
    Game& game = played.game;
    played.Start(1);
    EXPECT_EQ(game.lblVisibleCells, "49");
    EXPECT_EQ(game.lblSolvedByYou, "0");
    EXPECT_EQ(game.lblCellsToSolve, "32");
    const std::vector<int> cells = played.FindEmptyCells();
    game.cells[cells[0]].strEntry = played.GetWrongDigit(cells[0]);
    game.cells[cells[1]].strEntry = game.cells[cells[1]].strSolution;
    game.cells[cells[2]].strNotes = "1 ";
    played.desktop.log.clear();
    DoCellCount(game);
    EXPECT_EQ(game.lblSolvedByYou, "2");
    EXPECT_EQ(game.lblCellsToSolve, "30");
    EXPECT_EQ(CountMistakes(game), 1);
    EXPECT_EQ(DescribeLock(game), "1111111");
    EXPECT_TRUE(played.desktop.log.empty());
}

TEST(DoCellCount, GradesMistakesAndLocksTheBoardAfterTheBox) {
    for (int n = 1; n <= 12; ++n) {
        SCOPED_TRACE(n);
        const bool blnCellErrors = n % 2 == 0;
        PlayedGame played;
        Game& game = played.game;
        game.mnuCellErrors.blnChecked = blnCellErrors;
        played.Start(1);
        played.SetTime(0, 12, n);
        played.FillEmptyCells(n);
        played.desktop.fnDuringBox = [&](const MessageBox&) {
            EXPECT_EQ(CountMarks(game), n);
            EXPECT_EQ(game.lblIncorrectCells, std::to_string(n));
            EXPECT_EQ(game.lblSolvedByYou, "32");
            EXPECT_EQ(game.lblCellsToSolve, "0");
            EXPECT_EQ(game.mnuCellErrors.blnChecked, blnCellErrors);
            EXPECT_TRUE(game.cmdFinished.blnVisible);
            EXPECT_EQ(game.cmdFinished.strCaption, "View Solution");
            EXPECT_EQ(DescribeLock(game), "1111111");
            EXPECT_FALSE(played.desktop.IsRunning(Timer::tmr));
        };
        played.desktop.log.clear();
        PerformCellCheck(game);
        EXPECT_EQ(played.desktop.log,
                  (std::vector<std::string>{"tmr off", "beep", "box " + GetTitle(n)}));
        ASSERT_EQ(played.desktop.boxes.size(), 1U);
        const MessageBox& box = played.desktop.boxes.front();
        EXPECT_EQ(box.strText, "You have completed the 'Cellora' but you have made " +
                                   std::to_string(n) + (n == 1 ? " mistake" : " mistakes") +
                                   ".\r\n\r\nYour time was " + game.lblTime + ".");
        EXPECT_EQ(box.icon, MessageIcon::Information);
        EXPECT_EQ(box.buttons, MessageButtons::Ok);
        EXPECT_EQ(game.mnuCellErrors.blnChecked, blnCellErrors);
        EXPECT_EQ(CountMarks(game), n);
        ExpectLockedBoard(played);
    }
}

TEST(DoCellCount, ConsolesATimeThatEarnsNoPlace) {
    PlayedGame played({{7, MakeFullList()}});
    Game& game = played.game;
    played.Start(7);
    played.FillEmptyCells(0);
    played.SetTime(0, 10, 1);
    played.desktop.fnDuringBox = [&](const MessageBox&) {
        EXPECT_EQ(DescribeLock(game), "1111111");
        EXPECT_EQ(game.lblCellsToSolve, "0");
    };
    played.desktop.log.clear();
    DoCellCount(game);
    EXPECT_EQ(played.desktop.log,
              (std::vector<std::string>{"tmr off", "beep", "box Congratulations!"}));
    ASSERT_EQ(played.desktop.boxes.size(), 1U);
    const MessageBox& box = played.desktop.boxes.front();
    EXPECT_EQ(box.strText, "You have correctly completed Level 7 of the 'Cellora'. Unfortunately, "
                           "your time wasn't good enough to make it into the 'Top Ten' best times "
                           "for the level.\r\n\r\nYour time for Level 7 was 00:10:01. Better luck "
                           "next time!");
    EXPECT_EQ(box.icon, MessageIcon::Information);
    EXPECT_EQ(box.buttons, MessageButtons::Ok);
    EXPECT_FALSE(game.cmdFinished.blnVisible);
    ExpectLockedBoard(played);
}

TEST(DoCellCount, AsksForANameFromTheTenthBestTimeOn) {
    PlayedGame played({{7, MakeFullList()}});
    Game& game = played.game;
    played.Start(7);
    played.FillEmptyCells(0);
    played.SetTime(0, 10, 0);
    played.desktop.fnDuring[ModalWindow::frmEnterName] = [&] {
        EXPECT_EQ(DescribeLock(game), "1111111");
        EXPECT_EQ(GetRank(game), 10);
    };
    played.desktop.log.clear();
    DoCellCount(game);
    EXPECT_EQ(played.desktop.log, (std::vector<std::string>{"tmr off", "window 2"}));
    ExpectLockedBoard(played);
}

TEST(DoCellCount, EndsSilentlyWhenSolvedByTheProgramOrJustOpened) {
    for (const int intMistakes : {0, 2}) {
        for (const bool blnLoading : {true, false}) {
            PlayedGame played;
            Game& game = played.game;
            game.mnuCellErrors.blnChecked = false;
            played.Start(3);
            played.FillEmptyCells(intMistakes);
            (blnLoading ? game.blnLoadingGame : game.blnSolvedByComputer) = true;
            played.desktop.log.clear();
            PerformCellCheck(game);
            EXPECT_EQ(played.desktop.log, std::vector<std::string>{"tmr off"});
            const bool blnShown = blnLoading && intMistakes > 0;
            EXPECT_EQ(game.cmdFinished.blnVisible, blnShown);
            EXPECT_EQ(game.cmdFinished.strCaption, blnShown ? "View Solution" : "View Mistakes");
            EXPECT_EQ(CountMarks(game), blnShown ? 2 : 0);
            EXPECT_EQ(game.lblIncorrectCells, blnShown ? "2" : "(hidden)");
            EXPECT_FALSE(game.mnuCellErrors.blnChecked);
            ExpectLockedBoard(played);
        }
    }
}

TEST(DoCellCount, LeavesABoardThatTheNextGameUnlocks) {
    PlayedGame played;
    Game& game = played.game;
    played.Start(3);
    played.FillEmptyCells(1);
    PerformCellCheck(game);
    ExpectLockedBoard(played);
    played.Start(4);
    EXPECT_EQ(DescribeLock(game), "1111111");
    EXPECT_TRUE(played.desktop.IsRunning(Timer::tmr));
    EXPECT_FALSE(game.cmdFinished.blnVisible);
    EXPECT_EQ(game.cmdFinished.strCaption, "View Mistakes");
    EXPECT_EQ(CountMarks(game), 0);
    EXPECT_EQ(game.lblIncorrectCells, "0");
}

} // namespace
} // namespace cellora
