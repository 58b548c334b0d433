#include "core/modCellora.h"

#include <gtest/gtest.h>

#include "tests/support/test_game.h"

namespace cellora {
namespace {

TEST(ResetGrid, EmptiesAndThinsEveryCellButKeepsCluesAndMarks) {
    TestGame test;
    Game& game = test.game;
    game.intHighlight = 3;
    for (Cell& cell : game.cells)
        cell = {"5", true, "7", false, "1 2 ", {true, 9}, {4, 1}};
    ResetGrid(game);
    for (const Cell& cell : game.cells)
        EXPECT_EQ(cell, (Cell{"", true, "", true, "", {true, 9}, {1, 2}}));
    EXPECT_EQ(game.intHighlight, 0);
}

TEST(ResetCandidate, EmptiesTheNotesAndPutsNoOutlineInFront) {
    TestGame test;
    test.Fill(1);
    test.Give(2);
    const std::string strBoard = AsText(test.game);
    for (Cell& cell : test.game.cells)
        cell.strNotes = "4 2 ";
    test.game.intTopOutline = 41;
    ResetCandidate(test.game);
    EXPECT_EQ(AsText(test.game), strBoard);
    EXPECT_EQ(test.game.intTopOutline, 0);
}

/// The menu entries and toolbar buttons that are enabled, in menu order.
std::string ListEnabled(const Game& game) {
    std::string strText;
    for (const MenuItem* const item :
         {&game.mnuPrint, &game.mnuSave, &game.mnuSaveAs, &game.mnuNormal, &game.mnuFitWindow,
          &game.mnuNumberSelector, &game.mnuStatistics, &game.mnuSolveCell, &game.mnuCellErrors,
          &game.mnuSolve, &game.mnuPause, &game.mnuToolbar, &game.mnuStatusBar})
        strText += item->blnEnabled ? '1' : '0';
    strText += ' ';
    for (const bool blnEnabled : game.tbrMain.blnButtonEnabled)
        strText += blnEnabled ? '1' : '0';
    return strText;
}

TEST(DoEnable, MakesTheGameCommandsFollowTheGame) {
    TestGame test;
    Game& game = test.game;
    game.cmdFinished = {.blnVisible = true, .strCaption = std::string(strViewSolution)};
    game.blnSolvedByComputer = true;
    DoEnable(game);
    EXPECT_EQ(ListEnabled(game), "1111111111111 11111111111");
    EXPECT_FALSE(game.cmdFinished.blnVisible);
    EXPECT_EQ(game.cmdFinished.strCaption, "View Mistakes");
    EXPECT_FALSE(game.blnSolvedByComputer);
    game.blnGameActive = false;
    DoEnable(game);
    EXPECT_EQ(ListEnabled(game), "0000000000011 11101011101");
}

} // namespace
} // namespace cellora
