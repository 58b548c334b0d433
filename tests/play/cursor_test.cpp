#include "play/cursor.h"

#include <gtest/gtest.h>

#include "play/entry.h"
#include "tests/support/test_game.h"

namespace cellora {
namespace {

/// Where a move from a cell ends, in rows and columns that wrap.
int GetTarget(int intCell, int intDown, int intRight) {
    const int intRow = (GetRow(intCell) + intDown + 9) % 9;
    return 9 * intRow + (GetColumn(intCell) + intRight + 9) % 9 + 1;
}

TEST(CursorMoves, WrapWithinRowAndColumnOnAllCells) {
    struct Move {
        std::int16_t intKeyCode;
        int intDown, intRight;
    };
    TestGame test;
    Game& game = test.game;
    for (const Move& move : {Move{intKeyUp, -1, 0}, Move{intKeyDown, 1, 0}, Move{intKeyLeft, 0, -1},
                             Move{intKeyRight, 0, 1}}) {
        for (int i = 1; i <= intCellCount; ++i) {
            MoveCursor(game, i);
            DoKeyDown(game, move.intKeyCode);
            const int intTarget = GetTarget(i, move.intDown, move.intRight);
            ASSERT_EQ(game.intCursorCell, intTarget) << "key " << move.intKeyCode << " at " << i;
            ASSERT_EQ(game.intPrevCursorCell, i);
            ASSERT_EQ(DescribeOutlines(game), std::to_string(intTarget) + ":4/1");
            ASSERT_EQ(game.intTopOutline, intTarget);
        }
    }
    EXPECT_EQ(GetTarget(1, -1, 0), 73);
    EXPECT_EQ(GetTarget(18, 0, 1), 10);
    EXPECT_FALSE(game.blnGameChanged);
}

TEST(DrawCursor, DrawsTheSameCellThickAndNothingOnALockedGrid) {
    TestGame test;
    Game& game = test.game;
    MoveCursor(game, 5);
    MoveCursor(game, 5);
    EXPECT_EQ(DescribeOutlines(game), "5:4/1");
    game.picGrid.blnEnabled = false;
    MoveCursor(game, 6);
    EXPECT_EQ(game.intCursorCell, 6);
    EXPECT_EQ(DescribeOutlines(game), "5:4/1");
    EXPECT_EQ(game.intTopOutline, 5);
}

TEST(DisappearingCursor, KeepsWaitingWhileThePlayerDoesNotWantIt) {
    TestGame test;
    for (const int intOption : {0, 2, -1}) {
        test.game.intCursorOption = static_cast<std::int16_t>(intOption);
        test.desktop.running = {Timer::tmrCellWait, Timer::tmrCell};
        tmrCellWait_Timer(test.game);
        EXPECT_EQ(test.desktop.running, std::set{Timer::tmrCellWait}) << intOption;
        EXPECT_EQ(test.desktop.restarts.count(Timer::tmrCellWait), 0U);
    }
}

TEST(DisappearingCursor, ThinsInThreeTicksAndComesBackWithAnyKey) {
    TestGame test;
    Game& game = test.game;
    game.intCursorOption = 1;
    DoKeyDown(game, intKeyUp);
    EXPECT_TRUE(test.desktop.IsRunning(Timer::tmrCellWait));
    tmrCellWait_Timer(game);
    EXPECT_EQ(test.desktop.running, std::set{Timer::tmrCell});
    game.intTopOutline = 0;
    game.blnPaused = true;
    tmrCell_Timer(game);
    EXPECT_EQ(DescribeOutlines(game), "32:4/1");
    game.blnPaused = false;
    for (const char* const strOutline : {"32:3/1", "32:2/1", "32:1/1"}) {
        tmrCell_Timer(game);
        EXPECT_EQ(DescribeOutlines(game), strOutline);
        EXPECT_EQ(game.intTopOutline, 32);
        EXPECT_TRUE(test.desktop.IsRunning(Timer::tmrCell));
    }
    tmrCell_Timer(game);
    EXPECT_FALSE(test.desktop.IsRunning(Timer::tmrCell));
    EXPECT_EQ(DescribeOutlines(game), "32:1/1");
    DoKeyDown(game, 'A');
    EXPECT_EQ(DescribeOutlines(game), "32:4/1");
    EXPECT_TRUE(test.desktop.IsRunning(Timer::tmrCellWait));
}

} // namespace
} // namespace cellora
