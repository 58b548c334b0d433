#include "core/levels.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <set>

#include "tests/support/test_game.h"

namespace cellora {
namespace {

auto CountGiven(const Game& game) {
    return std::ranges::count_if(game.cells, &Cell::blnGiven);
}

TEST(ShowPartial, RevealsFiftyLessTheLevel) {
    TestGame test;
    std::set<std::string> boards;
    for (int intLevel = 1; intLevel <= 30; ++intLevel) {
        SCOPED_TRACE(intLevel);
        const std::string strLevel = "Level " + std::to_string(intLevel);
        HideSolution(test.game);
        EXPECT_EQ(CountGiven(test.game), 0);
        ShowPartial(test.game, strLevel);
        EXPECT_EQ(CountGiven(test.game), 50 - intLevel);
        EXPECT_EQ(test.game.lblLevel, strLevel);
        EXPECT_EQ(test.game.lblVisibleCells, std::to_string(50 - intLevel));
        EXPECT_EQ(GetLevelName(intLevel), strLevel);
        EXPECT_EQ(GetLevelNumber(strLevel), intLevel);
        boards.insert(AsText(test.game));
    }
    EXPECT_EQ(boards.size(), 30U);
    for (int i = 1; i <= intCellCount; ++i)
        EXPECT_EQ(test.game.cells[i].strSolution.front(), GetSolutionDigit(i));
}

TEST(ShowPartial, RevealsNothingForOtherNames) {
    TestGame test;
    for (const char* const strName :
         {"", "Level", "Level ", "Level 0", "Level 31", "Level -1", "Level 01", "level 1",
          "LEVEL 1", "Level 1 ", " Level 1", "Level  1", "Level1", "Level 1.0", "1"}) {
        ShowPartial(test.game, strName);
        EXPECT_EQ(CountGiven(test.game), 0) << strName;
        EXPECT_EQ(test.game.lblLevel, strName);
        EXPECT_EQ(test.game.lblVisibleCells, "0") << strName;
    }
}

TEST(ShowPartial, CanRevealEveryCellAndAddsToWhatIsGiven) {
    TestGame test;
    std::set<int> revealed;
    for (int intGame = 0; intGame < 50; ++intGame) {
        HideSolution(test.game);
        for (const int i : {1, 41, 81})
            test.Give(i);
        ShowPartial(test.game, "Level 30");
        EXPECT_EQ(CountGiven(test.game), 23);
        for (int i = 1; i <= intCellCount; ++i) {
            if (test.game.cells[i].blnGiven)
                revealed.insert(i);
        }
    }
    EXPECT_EQ(revealed.size(), 81U);
}

TEST(LevelNumber, IsReadFromTheEndOfACaption) {
    for (const char* const strCaption : {"", "x", "Level", "Level ", "Level x7"})
        EXPECT_EQ(GetLevelNumber(strCaption), 0) << strCaption;
    EXPECT_EQ(GetLevelNumber("Level 7."), 7);
    EXPECT_EQ(GetLevelNumber("7"), 7);
    EXPECT_EQ(GetLevelNumber("Level 123"), 23);
}

TEST(LeadingNumber, IsHeldToItsRange) {
    EXPECT_EQ(GetLeadingNumber("49"), 49);
    EXPECT_EQ(GetLeadingNumber("  12 cells"), 12);
    EXPECT_EQ(GetLeadingNumber("-3x"), -3);
    EXPECT_EQ(GetLeadingNumber("99999999999"), std::numeric_limits<std::int32_t>::max());
    EXPECT_EQ(GetLeadingNumber(" -99999999999"), std::numeric_limits<std::int32_t>::min());
    for (const char* const strText : {"", "   ", "x1", "(hidden)", "-", "- 1"})
        EXPECT_EQ(GetLeadingNumber(strText), 0) << strText;
}

} // namespace
} // namespace cellora
