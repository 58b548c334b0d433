#include <algorithm>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "core/levels.h"
#include "core/modCellora.h"
#include "core/modCreateSudoku.h"
#include "store/system_files.h"
#include "tests/support/scripted_desktop.h"

namespace cellora {
namespace {

constexpr std::int32_t lngMax = 2147483647;
constexpr std::int32_t lngMin = -lngMax - 1;

class Core : public testing::Test {
protected:
    std::vector<std::int32_t> Draw(int intCount, std::int32_t lo, std::int32_t hi) {
        std::vector<std::int32_t> aNumbers;
        for (int i = 0; i < intCount; ++i)
            aNumbers.push_back(RandomNumber(game, lo, hi));
        return aNumbers;
    }

    auto CountGiven() const { return std::ranges::count_if(game.cells, &Cell::blnGiven); }

    ScriptedDesktop desktop;
    SystemFiles files;
    Game game{desktop, files};
};

TEST_F(Core, RandomNumbersFollowThePublishedSequenceAtMidnight) {
    desktop.lngTimeOfDay = 0;
    // The sequence of the seed 0 begins E220A839..., 6E789E6A..., 06C45D18..., F88BB8A8...
    EXPECT_EQ(Draw(4, 0, 0xFFFFFF),
              (std::vector<std::int32_t>{0xE220A8, 0x6E789E, 0x06C45D, 0xF88BB8}));
}

TEST_F(Core, RandomNumbersReachEveryValueOfTheirRangeAboutEquallyOften) {
    for (const int intValues : {1, 2, 9, 81}) {
        std::vector<int> aHits(static_cast<std::size_t>(intValues));
        for (const std::int32_t lngNumber : Draw(1000 * intValues, -1, intValues - 2))
            ++aHits.at(static_cast<std::size_t>(lngNumber + 1));
        for (const int intHits : aHits)
            EXPECT_NEAR(intHits, 1000, 150) << intValues;
    }
    const auto [least, greatest] = std::ranges::minmax(Draw(1000, lngMin, lngMax));
    EXPECT_TRUE(least < lngMin / 2 && greatest > lngMax / 2);
}

TEST_F(Core, RandomNumbersDependOnTheTimeAndOnWhatWasDrawnBefore) {
    const auto aNumbers = Draw(20, 1, 1000);
    game.lngRandomState = 0;
    EXPECT_EQ(Draw(20, 1, 1000), aNumbers);
    EXPECT_NE(Draw(20, 1, 1000), aNumbers);
    game.lngRandomState = 0;
    ++desktop.lngTimeOfDay;
    EXPECT_NE(Draw(20, 1, 1000), aNumbers);
}

/// The digest stands for the grids and draws of a generator in its plainest form.
TEST_F(Core, SolutionsHoldEveryDigitOnceAndStayTheSame) {
    std::uint64_t lngDigest = 14695981039346656037U; // FNV-1a
    std::set<std::string> solutions;
    for (int intGame = 0; intGame < 300; ++intGame) {
        desktop.lngTimeOfDay = (intGame * 7919) % 86400;
        CreateSolution(game);
        std::set<std::string> groups;
        std::string strSolution;
        for (int i = 1; i <= intCellCount; ++i) {
            const std::string& strDigit = game.cells[i].strSolution;
            strSolution += strDigit;
            groups.insert('r' + std::to_string((i - 1) / 9) + strDigit);
            groups.insert('c' + std::to_string((i - 1) % 9) + strDigit);
            groups.insert('k' + std::to_string((i - 1) / 27 * 3 + (i - 1) % 9 / 3) + strDigit);
        }
        ASSERT_EQ(groups.size(), 243U) << strSolution;
        ASSERT_EQ(strSolution.find_first_not_of("123456789"), std::string::npos);
        solutions.insert(strSolution);
        for (const char c : strSolution + std::to_string(game.lngRandomState))
            lngDigest = (lngDigest ^ static_cast<unsigned char>(c)) * 1099511628211U;
    }
    EXPECT_EQ(solutions.size(), 300U);
    EXPECT_EQ(lngDigest, 6664903052248084227U);
}

TEST_F(Core, LevelsRevealFiftyLessTheirNumberAnywhere) {
    std::set<int> revealed;
    for (int intLevel = 1; intLevel <= 30; ++intLevel) {
        const std::string strLevel = "Level " + std::to_string(intLevel);
        HideSolution(game);
        ShowPartial(game, strLevel);
        EXPECT_EQ(CountGiven(), 50 - intLevel);
        EXPECT_EQ(game.statistics.lblLevel, strLevel);
        EXPECT_EQ(game.statistics.lblVisibleCells, std::to_string(50 - intLevel));
        EXPECT_EQ(GetLevelNumber(strLevel), intLevel);
        for (int i = 1; i <= intCellCount; ++i)
            if (game.cells[i].blnGiven)
                revealed.insert(i);
    }
    EXPECT_EQ(revealed.size(), 81U);
    HideSolution(game);
    game.cells[1].blnGiven = game.cells[81].blnGiven = true;
    ShowPartial(game, "Level 30");
    EXPECT_EQ(CountGiven(), 22);
}

TEST_F(Core, OtherLevelNamesRevealNothing) {
    for (const char* const strName : {"", "Level", "Level 0", "Level 31", "Level -1", "Level 01",
                                      "level 1", "Level 1 ", " Level 1", "Level1", "1"}) {
        ShowPartial(game, strName);
        EXPECT_EQ(CountGiven(), 0) << strName;
        EXPECT_EQ(game.statistics.lblLevel + game.statistics.lblVisibleCells,
                  std::string(strName) + "0");
    }
}

TEST_F(Core, NumbersAreReadFromTheirPlaceInATextAndHeldToTheirRange) {
    using Case = std::pair<const char*, std::int32_t>;
    for (const auto& [strCaption, intLevel] :
         {Case{"", 0}, {"Level x7", 0}, {"Level 7.", 7}, {"7", 7}, {"12", 12}, {"123", 23}})
        EXPECT_EQ(GetLevelNumber(strCaption), intLevel) << strCaption;
    for (const auto& [strText, lngNumber] : {Case{"49", 49},
                                             {"  12 cells", 12},
                                             {"-3x", -3},
                                             {"99999999999", lngMax},
                                             {" -99999999999", lngMin},
                                             {"", 0},
                                             {"   ", 0},
                                             {"x1", 0},
                                             {"- 1", 0}})
        EXPECT_EQ(GetLeadingNumber(strText), lngNumber) << strText;
    EXPECT_EQ(GetLeadingNumber(std::string_view("123").substr(0, 2)), 12);
}

} // namespace
} // namespace cellora
