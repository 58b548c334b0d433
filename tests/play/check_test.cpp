#include "play/check.h"

#include <gtest/gtest.h>

#include "tests/support/test_game.h"

namespace cellora {
namespace {

class Check : public testing::Test {
protected:
    /// A cell of the region whose solution is the digit.
    int FindCell(int intRegion, int intDigit) const {
        for (int i = 1; i <= intCellCount; ++i) {
            if (GetRegion(i) == intRegion && GetSolutionDigit(i) == '0' + intDigit)
                return i;
        }
        return 0;
    }

    std::string Shaded() {
        PerformCellCheck(game);
        return ListButtons(game, &NumberButton::blnShaded);
    }

    TestGame test;
    Game& game = test.game;
};

TEST_F(Check, MarksAndCountsWhatIsWrongNow) {
    PerformCellCheck(game);
    EXPECT_EQ(game.lblIncorrectCells, "0");
    test.Fill(1, "1");
    test.Fill(2, "1");
    test.Fill(3, "1");
    PerformCellCheck(game);
    EXPECT_EQ(game.lblIncorrectCells, "2");
    EXPECT_EQ(AsText(game).substr(0, 20), "1 1x 1x . . . . . .\n");
    EXPECT_EQ(game.cells[2].wrongMark, (WrongMark{true, 7}));
    test.Fill(2, "2");
    game.cells[3].strEntry.clear();
    PerformCellCheck(game);
    EXPECT_EQ(game.lblIncorrectCells, "0");
    EXPECT_EQ(AsText(game).substr(0, 18), "1 2 . . . . . . .\n");
    EXPECT_EQ(test.intCounts, 3);
}

TEST_F(Check, HidesMarksAndCountUntilThePlayerWantsThem) {
    game.mnuCellErrors.blnChecked = false;
    test.Fill(1, "9");
    PerformCellCheck(game);
    EXPECT_EQ(game.lblIncorrectCells, "(hidden)");
    EXPECT_EQ(AsText(game.cells[1]), "9");
    ToggleCellErrors(game);
    EXPECT_TRUE(game.mnuCellErrors.blnChecked);
    EXPECT_EQ(game.lblIncorrectCells, "1");
    EXPECT_EQ(AsText(game.cells[1]), "9x");
    ToggleCellErrors(game);
    EXPECT_FALSE(game.mnuCellErrors.blnChecked);
    EXPECT_EQ(game.lblIncorrectCells, "(hidden)");
    EXPECT_EQ(AsText(game.cells[1]), "9");
    EXPECT_EQ(test.intCounts, 1);
}

TEST_F(Check, MarksWhateverDiffersFromTheSolutionAsText) {
    test.Give(1);
    test.Fill(1, "9"); // a digit under a clue, from a file
    test.Fill(2, "22");
    PerformCellCheck(game);
    EXPECT_EQ(AsText(game.cells[1]), "#1x");
    EXPECT_EQ(AsText(game.cells[2]), "22x");
    EXPECT_EQ(game.lblIncorrectCells, "2");
}

TEST_F(Check, ShadesADigitSeenInAllNineRegions) {
    for (int k = 0; k < 8; ++k)
        test.Give(FindCell(k, 5));
    test.Fill(FindCell(0, 6), "5"); // two in one region do not stand for another
    EXPECT_EQ(Shaded(), "");
    const int intLast = FindCell(8, 7);
    test.Fill(intLast, "5"); // wrong there, but to be seen
    EXPECT_EQ(Shaded(), "5");
    game.cells[intLast].strEntry = " 5 ";
    EXPECT_EQ(Shaded(), "5");
    game.cells[intLast].strEntry = "55";
    EXPECT_EQ(Shaded(), "");
    game.cells[intLast].strEntry.clear();
    EXPECT_EQ(Shaded(), "");
}

TEST_F(Check, EntryUnderAClueIsNotSeenAndHiddenSolutionsNeither) {
    for (int k = 0; k < 9; ++k) {
        test.Give(FindCell(k, 3));
        test.Fill(FindCell(k, 3), "4");
    }
    EXPECT_EQ(Shaded(), "3");
    for (Cell& cell : game.cells)
        cell.blnGiven = true;
    EXPECT_EQ(Shaded(), "123456789");
    EXPECT_FALSE(game.picButton[intEraser].blnShaded);
}

} // namespace
} // namespace cellora
