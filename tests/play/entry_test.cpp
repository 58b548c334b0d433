#include "play/entry.h"

#include <gtest/gtest.h>

#include "play/selector.h"
#include "tests/support/test_game.h"

namespace cellora {
namespace {

constexpr const char* strTimerRestart = "tmrCellWait off, tmrCellWait on";

/// Cell 10 holds a digit and notes, cell 11 is a clue, the cursor is on cell 10.
class Entry : public testing::Test {
protected:
    Entry() {
        test.Fill(10, "9");
        game.cells[10].strNotes = "3 5 ";
        test.Give(11);
        game.intCursorCell = 10;
        game.intSelectedNumber = 6;
        strBoard = AsText(game);
    }

    std::string Shown(int intCell) const { return AsText(game.cells[intCell]); }

    TestGame test;
    Game& game = test.game;
    std::string strBoard;
};

TEST_F(Entry, ClickPlacesTheSelectedNumberOrErases) {
    for (const MouseButton button : {MouseButton::Left, MouseButton::Middle}) {
        for (const int intNumber : {1, 6, 6, intEraser, intEraser}) {
            game.blnGameChanged = false;
            game.cells[10].strNotes = "3 5 ";
            game.intSelectedNumber = static_cast<std::int16_t>(intNumber);
            CellClick(game, 10, button);
            EXPECT_EQ(Shown(10), intNumber == intEraser ? "." : std::to_string(intNumber) + 'x');
            EXPECT_TRUE(game.blnGameChanged);
            EXPECT_EQ(test.TakeLog(), std::string("count, ") + strTimerRestart);
        }
    }
}

TEST_F(Entry, ClickOnlyMovesTheCursorOnAClueOrWithTheSelectorOff) {
    CellClick(game, 11, MouseButton::None);
    EXPECT_EQ(DescribeOutlines(game), "11:4/1");
    CellClick(game, 11, MouseButton::Left);
    EXPECT_EQ(DescribeOutlines(game), "11:4/1");
    test.TakeLog();
    ShowNumberRow(game, false);
    CellClick(game, 10, MouseButton::Left);
    EXPECT_EQ(DescribeOutlines(game), "10:4/1");
    EXPECT_EQ(game.intPrevCursorCell, 11);
    EXPECT_EQ(AsText(game), strBoard);
    EXPECT_FALSE(game.blnGameChanged);
    EXPECT_EQ(test.intCounts, 0);
    EXPECT_EQ(test.TakeLog(), strTimerRestart);
}

TEST_F(Entry, RightClickMovesTheCursorAndOpensThePopupUnlessTheCellIsAClue) {
    game.intCursorCell = 41;
    CellClick(game, 11, MouseButton::Right);
    EXPECT_EQ(game.intCursorCell, 11);
    EXPECT_TRUE(test.desktop.popups.empty());
    EXPECT_EQ(test.TakeLog(), "");
    CellClick(game, 10, MouseButton::Right);
    EXPECT_EQ(game.intCursorCell, 10);
    EXPECT_EQ(test.desktop.popups, std::vector{PopupMenu::mnuRightClick});
    EXPECT_EQ(test.TakeLog(), "tmrCellWait off");
    EXPECT_EQ(AsText(game), strBoard);
    EXPECT_FALSE(game.blnGameChanged);
}

TEST_F(Entry, DigitKeysOfBothRowsTypeAndSelectTheDigit) {
    for (const std::int16_t intFirst : {intKeyDigit1, intKeyKeypad1}) {
        for (int intDigit = 1; intDigit <= 9; ++intDigit) {
            game.blnGameChanged = false;
            game.cells[10].strNotes = "3 5 ";
            test.intCounts = 0;
            DoKeyDown(game, static_cast<std::int16_t>(intFirst + intDigit - 1));
            EXPECT_EQ(game.cells[10].strEntry, std::to_string(intDigit));
            EXPECT_EQ(game.cells[10].strNotes, "");
            EXPECT_TRUE(game.blnGameChanged);
            EXPECT_EQ(game.intSelectedNumber, intDigit);
            EXPECT_EQ(ListButtons(game, &NumberButton::blnFramed), std::to_string(intDigit));
            EXPECT_EQ(test.intCounts, 1);
        }
    }
    game.picButtons.blnVisible = false;
    DoKeyDown(game, '2');
    EXPECT_EQ(game.cells[10].strEntry, "2");
    EXPECT_EQ(game.intSelectedNumber, 9);
}

TEST_F(Entry, TypingOnAClueStoresNothingButIsAnAction) {
    game.intCursorCell = 11;
    DoKeyDown(game, '5');
    EXPECT_EQ(Shown(11), "#5");
    EXPECT_EQ(game.cells[11].strEntry, "");
    EXPECT_FALSE(game.blnGameChanged);
    EXPECT_EQ(game.intSelectedNumber, 6);
    EXPECT_EQ(DescribeOutlines(game), "11:4/1");
    EXPECT_EQ(test.intCounts, 1);
    EXPECT_TRUE(test.desktop.IsRunning(Timer::tmrCellWait));
}

TEST_F(Entry, OtherKeysOnlyRedrawCheckAndWait) {
    DoKeyDown(game, 0);
    const std::string strMarked = AsText(game);
    test.TakeLog();
    for (const int intKey :
         {-1, 0, 9, 13, 27, 33, 36, 41, 45, 47, 48, 58, 65, 96, 106, 112, 32767}) {
        DoKeyDown(game, static_cast<std::int16_t>(intKey));
        EXPECT_EQ(test.TakeLog(), std::string("count, ") + strTimerRestart) << intKey;
    }
    EXPECT_EQ(AsText(game), strMarked);
    EXPECT_EQ(game.intCursorCell, 10);
    EXPECT_EQ(game.intSelectedNumber, 6);
    EXPECT_FALSE(game.blnGameChanged);
}

TEST_F(Entry, ClearKeysEmptyTheCellAndSelectTheEraserWithoutAChange) {
    for (const std::int16_t intKey : {intKeyBackspace, intKeySpace, intKeyDelete}) {
        test.Fill(10, "9");
        game.cells[10].strNotes = "3 5 ";
        game.picButtons.blnVisible = intKey != intKeyDelete;
        DoNumberSelect(game, 6);
        DoKeyDown(game, intKey);
        EXPECT_EQ(Shown(10), ".");
        EXPECT_EQ(game.intSelectedNumber, intEraser);
        EXPECT_EQ(ListButtons(game, &NumberButton::blnFramed), "E");
        EXPECT_EQ(game.intPointer, intEraser);
        EXPECT_FALSE(game.blnGameChanged);
    }
    game.intCursorCell = 11;
    DoNumberSelect(game, 6);
    DoKeyDown(game, intKeyDelete);
    EXPECT_EQ(Shown(11), "#5");
    EXPECT_EQ(game.intSelectedNumber, intEraser);
}

TEST_F(Entry, KeysDoNothingWithoutABoardOrOnALockedOne) {
    const auto fnPressAll = [this] {
        for (const int intKey : {8, 32, 37, 38, 39, 40, 46, 53, 65, 97})
            DoKeyDown(game, static_cast<std::int16_t>(intKey));
    };
    game.picGrid.blnEnabled = false;
    fnPressAll();
    game.picGrid = {.blnVisible = false, .blnEnabled = true};
    fnPressAll();
    EXPECT_EQ(AsText(game), strBoard);
    EXPECT_EQ(game.intCursorCell, 10);
    EXPECT_EQ(game.intSelectedNumber, 6);
    EXPECT_EQ(test.TakeLog(), "");
}

TEST_F(Entry, MoveThatEndsTheGameIsAChangeAndTheLastOne) {
    game.fnDoCellCount = [](Game& ended) { ended.picGrid.blnEnabled = false; };
    CellClick(game, 10, MouseButton::Left);
    EXPECT_EQ(game.cells[10].strEntry, "6");
    EXPECT_TRUE(game.blnGameChanged);
    EXPECT_EQ(DescribeOutlines(game), "10:4/1");
    DoKeyDown(game, '1');
    EXPECT_EQ(game.cells[10].strEntry, "6");
}

} // namespace
} // namespace cellora
