#include "flow/clock.h"

#include <gtest/gtest.h>

#include <limits>
#include <set>

#include "play/cursor.h"
#include "played_game.h"

namespace cellora {
namespace {

constexpr std::int32_t lngLargest = std::numeric_limits<std::int32_t>::max();

TEST(DoTime, CarriesOnceAndShowsTwoDigitsOrMore) {
    struct Case {
        std::int32_t lngBefore[3];
        std::int32_t lngAfter[3];
        std::string strTime;
    };
    const Case cases[] = {
        {{0, 7, 5}, {0, 7, 5}, "00:07:05"},
        {{0, 0, 59}, {0, 0, 59}, "00:00:59"},
        {{0, 0, 60}, {0, 1, 0}, "00:01:00"},
        {{0, 0, 75}, {0, 1, 15}, "00:01:15"},
        {{0, 0, 200}, {0, 1, 140}, "00:01:140"},
        {{0, 59, 60}, {1, 0, 0}, "01:00:00"},
        {{0, 75, 59}, {0, 75, 59}, "00:75:59"},
        {{0, 75, 60}, {1, 0, 0}, "01:00:00"},
        {{99, 59, 89}, {100, 0, 29}, "100:00:29"},
        {{lngLargest, 59, 60}, {lngLargest, 0, 0}, "2147483647:00:00"},
        {{0, lngLargest, lngLargest}, {1, 0, lngLargest - 60}, "01:00:2147483587"},
    };
    for (const Case& c : cases) {
        PlayedGame played;
        played.SetTime(c.lngBefore[0], c.lngBefore[1], c.lngBefore[2]);
        EXPECT_EQ(played.game.lblTime, c.strTime);
        EXPECT_EQ(played.game.lngHours, c.lngAfter[0]) << c.strTime;
        EXPECT_EQ(played.game.lngMinutes, c.lngAfter[1]) << c.strTime;
        EXPECT_EQ(played.game.lngSeconds, c.lngAfter[2]) << c.strTime;
    }
    EXPECT_EQ(GetTimeInSeconds(lngLargest, lngLargest, lngLargest),
              std::int64_t{lngLargest} * 3661);
}

TEST(ClockTick, CountsSecondsUntilTheGridIsLocked) {
    PlayedGame played;
    Game& game = played.game;
    for (int i = 0; i < 3600; ++i)
        tmr_Timer(game);
    EXPECT_EQ(game.lblTime, "01:00:00");
    game.picGrid.blnEnabled = false;
    tmr_Timer(game);
    EXPECT_EQ(game.lblTime, "01:00:00");
    EXPECT_EQ(game.lngSeconds, 0);
    game.picGrid.blnEnabled = true;
    played.SetTime(0, 0, lngLargest);
    game.lngSeconds = lngLargest;
    tmr_Timer(game);
    EXPECT_EQ(game.lngSeconds, lngLargest - 60);
}

std::set<Color> GetOutlineColors(const Game& game) {
    std::set<Color> colors;
    for (const Cell& cell : game.cells)
        colors.insert(cell.outline.lngColor);
    return colors;
}

void ExpectBlankBoard(const Game& game) {
    constexpr Color lngInactive = lngColorInactiveCaptionText;
    EXPECT_TRUE(game.blnPaused);
    EXPECT_EQ(game.boardColors.lngUserText, lngInactive);
    EXPECT_EQ(game.boardColors.lngComputerText, lngInactive);
    EXPECT_EQ(game.boardColors.lngRegionLine, lngInactive);
    EXPECT_EQ(game.boardColors.lngStatisticsFrame, lngInactive);
    EXPECT_EQ(game.boardColors.lngStatisticsText, lngInactive);
    EXPECT_EQ(GetOutlineColors(game), std::set{lngInactive});
    EXPECT_FALSE(game.picButtons.blnVisible);
    for (const bool blnEnabled : game.tbrMain.blnButtonEnabled)
        EXPECT_FALSE(blnEnabled);
}

void ExpectRestoredBoard(const Game& game) {
    EXPECT_FALSE(game.blnPaused);
    EXPECT_EQ(game.boardColors.lngUserText, game.colors.lngColorFontUser);
    EXPECT_EQ(game.boardColors.lngComputerText, game.colors.lngColorFontComputer);
    EXPECT_EQ(game.boardColors.lngRegionLine, game.colors.lngColorGridLines);
    EXPECT_EQ(game.boardColors.lngStatisticsFrame, lngColorWindowText);
    EXPECT_EQ(game.boardColors.lngStatisticsText, lngColorButtonText);
    EXPECT_EQ(GetOutlineColors(game), std::set{game.colors.lngColorGridLines});
    for (const bool blnEnabled : game.tbrMain.blnButtonEnabled)
        EXPECT_TRUE(blnEnabled);
}

TEST(PauseGame, BlanksTheBoardAndGoesOnFromTheSameTime) {
    for (const bool blnSelector : {true, false}) {
        PlayedGame played;
        Game& game = played.game;
        game.mnuNumberSelector.blnChecked = blnSelector;
        played.Start(5);
        played.SetTime(1, 2, 3);
        game.cells[played.FindEmptyCells().front()].strNotes = "3 1 ";
        const std::string strBefore = DescribeGame(game);
        const Color lngFill = game.boardColors.lngRegionFill;
        bool blnShown = false;
        played.desktop.fnDuring[ModalWindow::frmPause] = [&] {
            blnShown = true;
            ExpectBlankBoard(game);
            EXPECT_FALSE(played.desktop.IsRunning(Timer::tmr));
            EXPECT_TRUE(game.mnuPause.blnEnabled);
            tmrCell_Timer(game);
        };
        played.desktop.log.clear();
        PauseGame(game);
        EXPECT_TRUE(blnShown);
        EXPECT_EQ(played.desktop.log, (std::vector<std::string>{"tmr off", "window 1", "tmr on"}));
        ExpectRestoredBoard(game);
        EXPECT_EQ(game.picButtons.blnVisible, blnSelector);
        EXPECT_EQ(game.boardColors.lngRegionFill, lngFill);
        EXPECT_EQ(game.cells[intCenterCell].outline, (Outline{4, game.colors.lngColorGridLines}));
        EXPECT_EQ(DescribeGame(game), strBefore);
    }
}

} // namespace
} // namespace cellora
