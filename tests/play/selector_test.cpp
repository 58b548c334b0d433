#include "play/selector.h"

#include <gtest/gtest.h>

#include "play/entry.h"
#include "tests/support/test_game.h"

namespace cellora {
namespace {

/// Selected number, frames, pointer, and the popup's quick entries and separator.
std::string DescribeSelection(const Game& game) {
    std::string strText = std::to_string(game.intSelectedNumber) + " frames " +
                          ListButtons(game, &NumberButton::blnFramed) + " pointer " +
                          std::to_string(game.intPointer) + " quick ";
    for (int n = 1; n <= 9; ++n)
        strText += game.mnuA[n].blnVisible ? std::to_string(n) : "";
    return strText + (game.mnuAsepVisible ? "-" : "");
}

class Selector : public testing::Test {
protected:
    /// "6" and "E" click a button, "-" and "+" switch the row, "d" presses Delete and "t" types 7.
    void Play(std::string_view strSteps) {
        for (const char step : strSteps) {
            if (step == '-' || step == '+')
                ShowNumberRow(game, step == '+');
            else if (step == 'd' || step == 't')
                DoKeyDown(game, step == 'd' ? intKeyDelete : std::int16_t{'7'});
            else
                DoButtonClick(game, step == 'E' ? intEraser : step - '0');
        }
    }

    TestGame test;
    Game& game = test.game;
};

TEST_F(Selector, ClickFramesAndSelectsOneButton) {
    for (int n = 1; n <= 9; ++n) {
        const std::string strDigit = std::to_string(n);
        picButton_MouseUp(game, n, false);
        EXPECT_EQ(DescribeSelection(game), strDigit + " frames " + strDigit + " pointer " +
                                               strDigit + " quick " + strDigit + "-");
    }
    EXPECT_EQ(game.intLastSelectedNumber, 8);
    test.TakeLog();
    picButton_MouseUp(game, intEraser, false);
    EXPECT_EQ(DescribeSelection(game), "10 frames E pointer 10 quick ");
    EXPECT_EQ(test.TakeLog(), "tmrCellWait off, tmrCellWait on");
    EXPECT_TRUE(test.desktop.popups.empty());
    picButton_MouseUp(game, 4, true);
    EXPECT_EQ(DescribeSelection(game), "4 frames 4 pointer 4 quick 4-");
    EXPECT_EQ(test.desktop.popups, std::vector{PopupMenu::mnuButton});
    EXPECT_EQ(test.intCounts, 0);
}

TEST_F(Selector, ReturnsWithTheNumberThatWasSelectedBefore) {
    struct Case {
        const char *strSteps, *strSelection;
    };
    for (const Case& row : {
             Case{"6-", "0 frames 6 pointer 0 quick "},
             Case{"6-+", "6 frames 6 pointer 6 quick 6-"},
             Case{"6-+-+", "6 frames 6 pointer 6 quick 6-"},
             Case{"E-+", "10 frames E pointer 10 quick "},
             Case{"6-d", "10 frames E pointer 10 quick "},
             Case{"6-d+", "1 frames 1E pointer 1 quick 1-"},
             Case{"6-dd+", "10 frames E pointer 10 quick "},
             Case{"6--+", "1 frames 16 pointer 1 quick 1-"},
             Case{"6-t", "0 frames 6 pointer 0 quick "},
             Case{"6-t+", "6 frames 6 pointer 6 quick 6-"},
             Case{"6t", "7 frames 7 pointer 7 quick 7-"},
         }) {
        ShowNumberRow(game, true);
        Play(row.strSteps);
        EXPECT_EQ(DescribeSelection(game), row.strSelection) << row.strSteps;
        EXPECT_EQ(game.picButtons.blnVisible, game.mnuNumberSelector.blnChecked);
    }
    Play("6-d+");
    EXPECT_EQ(game.intLastSelectedNumber, intEraser);
    Play("6--+");
    EXPECT_EQ(game.intLastSelectedNumber, 0);
}

TEST_F(Selector, HighlightFollowsTheChosenDigitOnly) {
    DoButtonClick(game, 4);
    EXPECT_TRUE(CanHighlight(game) && !IsHighlighted(game));
    mnuHighlight_Click(game);
    EXPECT_TRUE(IsHighlighted(game));
    DoButtonClick(game, 5);
    EXPECT_EQ(game.intHighlight, 4);
    EXPECT_FALSE(IsHighlighted(game));
    mnuHighlight_Click(game);
    EXPECT_EQ(game.intHighlight, 5);
    for (const int intNumber : {intEraser, 0}) {
        DoNumberSelect(game, intNumber);
        EXPECT_FALSE(CanHighlight(game) || IsHighlighted(game));
        mnuHighlight_Click(game);
        EXPECT_EQ(game.intHighlight, 5);
    }
    DoButtonClick(game, 5);
    mnuHighlight_Click(game);
    EXPECT_EQ(game.intHighlight, 0);
    mnuHighlight_Click(game);
    ResetGrid(game);
    EXPECT_EQ(game.intHighlight, 0);
    EXPECT_FALSE(game.blnGameChanged);
}

} // namespace
} // namespace cellora
