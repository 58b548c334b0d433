#include "flow/aids.h"

#include <gtest/gtest.h>

#include <set>

#include "play/check.h"
#include "played_game.h"

namespace cellora {
namespace {

TEST(RandomInRange, GivesEveryValueAndNoOther) {
    PlayedGame played;
    std::set<int> values;
    for (int i = 0; i < 3000; ++i)
        values.insert(RandomInRange(played.game, 1, 81));
    EXPECT_EQ(values.size(), 81U);
    EXPECT_EQ(*values.begin(), 1);
    EXPECT_EQ(*values.rbegin(), 81);
    EXPECT_EQ(RandomInRange(played.game, -32'768, -32'768), -32'768);
}

TEST(SolvingAids, ChangeNothingWhenRefused) {
    PlayedGame played;
    Game& game = played.game;
    played.Start(8);
    played.SetTime(0, 0, 45);
    const std::string strBefore = DescribeGame(game);
    const std::set<Timer> runningBefore = played.desktop.running;
    played.desktop.log.clear();
    for (const Answer answer : {Answer::No, Answer::Cancel}) {
        played.desktop.answers = {answer, answer};
        SolveOneCell(game);
        SolvePuzzle(game);
    }
    EXPECT_EQ(DescribeGame(game), strBefore);
    EXPECT_EQ(played.desktop.running, runningBefore);
    EXPECT_EQ(played.desktop.log, (std::vector<std::string>{
                                      "beep", "box Solve One Cell?", "beep", "box Solve Puzzle?",
                                      "beep", "box Solve One Cell?", "beep", "box Solve Puzzle?"}));
    const MessageBox& boxCell = played.desktop.boxes[0];
    EXPECT_EQ(boxCell.strText, "Solving a cell will incur a 30 second time penalty.\r\n\r\nAre you "
                               "sure you want one of the cells solved for you?");
    const MessageBox& boxPuzzle = played.desktop.boxes[1];
    EXPECT_EQ(boxPuzzle.strText,
              "Are you sure you want this puzzle solved for you?\r\n\r\nIf you select 'Yes', then "
              "this game will not be included in the 'Top Ten' hall of fame rankings.\r\n\r\nDo "
              "you this puzzle solved?");
    for (const MessageBox& box : {boxCell, boxPuzzle}) {
        EXPECT_EQ(box.icon, MessageIcon::Question);
        EXPECT_EQ(box.buttons, MessageButtons::YesNo);
    }
}

TEST(SolveOneCell, RevealsAnEmptyCellForThirtySeconds) {
    PlayedGame played;
    Game& game = played.game;
    game.mnuCellErrors.blnChecked = false;
    played.Start(30);
    const std::vector<int> cells = played.FindEmptyCells();
    for (const int i : cells)
        game.cells[i].strNotes = "2 7 ";
    game.cells[cells[0]].strEntry = played.GetWrongDigit(cells[0]);
    game.cells[cells[1]].strEntry = game.cells[cells[1]].strSolution;
    played.SetTime(0, 0, 45);
    std::set<int> open(cells.begin() + 2, cells.end());
    for (int intRevealed = 1; open.size() > 1; ++intRevealed) {
        const auto cellsBefore = game.cells;
        played.desktop.answers = {Answer::Yes};
        SolveOneCell(game);
        const int intCell = game.intCursorCell;
        ASSERT_EQ(open.erase(intCell), 1U) << "a cell that was not empty";
        EXPECT_TRUE(game.cells[intCell].blnGiven);
        EXPECT_EQ(game.cells[intCell].strEntry, "");
        EXPECT_EQ(game.cells[intCell].strNotes, "");
        EXPECT_EQ(game.cells[intCell].strSolution, cellsBefore[intCell].strSolution);
        EXPECT_EQ(std::to_string(game.intSelectedNumber), game.cells[intCell].strSolution);
        EXPECT_EQ(game.lblVisibleCells, std::to_string(20 + intRevealed));
        EXPECT_EQ(game.lblCellsToSolve, std::to_string(open.size()));
        EXPECT_EQ(game.lblSolvedByYou, "2");
        EXPECT_EQ(GetTimeInSeconds(0, game.lngMinutes, game.lngSeconds), 45 + 30 * intRevealed);
        for (const int i : cells) {
            if (i != intCell) {
                EXPECT_EQ(game.cells[i].strEntry, cellsBefore[i].strEntry);
                EXPECT_EQ(game.cells[i].strNotes, cellsBefore[i].strNotes);
            }
        }
        if (intRevealed == 1) {
            EXPECT_EQ(game.lblTime, "00:01:15");
        }
        Game shaded = game;
        DoNumberShade(shaded);
        for (int n = 1; n <= 9; ++n)
            EXPECT_EQ(game.picButton[n].blnShaded, shaded.picButton[n].blnShaded) << n;
        EXPECT_TRUE(played.desktop.IsRunning(Timer::tmr));
        EXPECT_EQ(played.desktop.pointer, MousePointer::Default);
    }
}

TEST(SolveOneCell, ChargesThePenaltyBeforeItEndsTheGame) {
    PlayedGame played;
    Game& game = played.game;
    played.Start(10);
    played.FillEmptyCells(1);
    int intLast = 0;
    for (int i = intCellCount; intLast == 0; --i)
        intLast = game.cells[i].blnGiven ? 0 : i;
    game.cells[intLast].strEntry.clear();
    played.SetTime(0, 59, 45);
    played.desktop.answers = {Answer::Yes};
    played.desktop.log.clear();
    SolveOneCell(game);
    EXPECT_EQ(played.desktop.log, (std::vector<std::string>{
                                      "beep", "box Solve One Cell?", "hourglass", "tmrCellWait off",
                                      "tmrCellWait on", "tmrCellWait off", "tmrCellWait on",
                                      "arrow", "tmr off", "beep", "box Good Effort!"}));
    EXPECT_EQ(played.desktop.boxes.back().strText,
              "You have completed the 'Cellora' but you have made 1 mistake.\r\n\r\nYour time was "
              "01:00:15.");
    EXPECT_EQ(game.intCursorCell, intLast);
    EXPECT_FALSE(game.picGrid.blnEnabled);
}

TEST(SolvePuzzle, FillsWhatIsEmptyAndKeepsOutOfTheTopTen) {
    for (const int intEntries : {0, 2}) {
        PlayedGame played;
        Game& game = played.game;
        played.Start(6);
        played.SetTime(0, 0, 1);
        const std::vector<int> cells = played.FindEmptyCells();
        for (int i = 0; i < intEntries; ++i) {
            const int intCell = cells[static_cast<std::size_t>(i)];
            game.cells[intCell].strEntry = played.GetWrongDigit(intCell);
        }
        game.cells[cells.back()].strNotes = "4 2 ";
        PerformCellCheck(game);
        auto expected = game.cells;
        for (const int i : cells)
            expected[i].blnGiven = expected[i].strEntry.empty();
        const std::string strFileBefore = played.ReadFile();
        played.desktop.answers = {Answer::Yes};
        played.desktop.log.clear();
        SolvePuzzle(game);
        EXPECT_EQ(played.desktop.log, (std::vector<std::string>{"beep", "box Solve Puzzle?",
                                                                "hourglass", "arrow", "tmr off"}));
        EXPECT_TRUE(game.cells == expected);
        EXPECT_TRUE(game.blnSolvedByComputer);
        EXPECT_FALSE(game.picGrid.blnEnabled);
        EXPECT_FALSE(game.cmdFinished.blnVisible);
        EXPECT_EQ(game.lblTime, "00:00:01");
        EXPECT_EQ(game.lblSolvedByYou, std::to_string(intEntries));
        EXPECT_EQ(game.lblCellsToSolve, "0");
        EXPECT_EQ(FindDifference(played.ReadFile(), strFileBefore), "");
    }
}

/// Digits as they are seen, each with an "x" behind it when it is marked.
std::string DescribeView(const Game& game) {
    std::string strText;
    for (const Cell& cell : game.cells) {
        // A hidden entry leaves only a solution to see.
        EXPECT_TRUE(cell.blnGiven || cell.blnEntryShown);
        strText += cell.GetShownText() + (cell.wrongMark.blnOpaque ? "x" : "");
    }
    return strText;
}

TEST(ToggleSolutionView, SwitchesBetweenTheSolutionAndTheMistakes) {
    PlayedGame played;
    Game& game = played.game;
    game.mnuCellErrors.blnChecked = false;
    played.Start(1);
    std::string strSolution;
    for (const Cell& cell : game.cells)
        strSolution += cell.strSolution;
    played.FillEmptyCells(2);
    PerformCellCheck(game);
    const std::string strMistakes = DescribeView(game);
    EXPECT_EQ(strMistakes.size(), 83U);
    const std::string strCounts =
        game.lblSolvedByYou + game.lblCellsToSolve + game.lblVisibleCells + game.lblIncorrectCells;
    const auto cellsBefore = game.cells;
    for (int i = 0; i < 2; ++i) {
        ToggleSolutionView(game);
        EXPECT_EQ(game.cmdFinished.strCaption, "View Mistakes");
        EXPECT_EQ(DescribeView(game), strSolution);
        for (const Cell& cell : game.cells)
            EXPECT_TRUE(cell.blnGiven && cell.blnEntryShown == cell.strEntry.empty());
        game.colors.lngColorIncorrectCell = 100 + i; // the player may choose another meanwhile
        ToggleSolutionView(game);
        EXPECT_EQ(game.cmdFinished.strCaption, "View Solution");
        EXPECT_EQ(DescribeView(game), strMistakes);
    }
    for (int i = 1; i <= intCellCount; ++i) {
        EXPECT_EQ(game.cells[i].strEntry, cellsBefore[i].strEntry);
        EXPECT_EQ(game.cells[i].strSolution, cellsBefore[i].strSolution);
        EXPECT_EQ(game.cells[i].wrongMark.lngColor == 101, cellsBefore[i].wrongMark.blnOpaque);
    }
    EXPECT_EQ(game.lblSolvedByYou + game.lblCellsToSolve + game.lblVisibleCells +
                  game.lblIncorrectCells,
              strCounts);
    EXPECT_EQ(played.desktop.boxes.size(), 1U);
}

} // namespace
} // namespace cellora
