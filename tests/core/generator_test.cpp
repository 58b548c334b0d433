#include "core/modCreateSudoku.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <limits>
#include <set>
#include <vector>

#include "tests/support/literal_generator.h"
#include "tests/support/test_game.h"

namespace cellora {
namespace {

constexpr std::int32_t lngMax = std::numeric_limits<std::int32_t>::max();
constexpr std::int32_t lngMin = std::numeric_limits<std::int32_t>::min();

std::vector<std::int32_t> Draw(TestGame& test, int intCount, std::int32_t lo, std::int32_t hi) {
    std::vector<std::int32_t> aNumbers;
    for (int i = 0; i < intCount; ++i)
        aNumbers.push_back(RandomNumber(test.game, lo, hi));
    return aNumbers;
}

/// The solution's digits in one line.
std::string GetSolution(const Game& game) {
    std::string strDigits;
    for (const Cell& cell : game.cells)
        strDigits += cell.strSolution;
    return strDigits;
}

TEST(RandomNumber, FollowsThePublishedSequenceAtMidnight) {
    TestGame test;
    test.desktop.lngTimeOfDay = 0;
    // The sequence of the seed 0 begins E220A839..., 6E789E6A..., 06C45D18..., F88BB8A8...
    EXPECT_EQ(Draw(test, 4, 0, 0xFFFFFF),
              (std::vector<std::int32_t>{0xE220A8, 0x6E789E, 0x06C45D, 0xF88BB8}));
}

TEST(RandomNumber, KeepsToItsRange) {
    TestGame test;
    for (int i = 0; i < 1000; ++i) {
        ASSERT_EQ(RandomNumber(test.game, 1, 1), 1);
        ASSERT_EQ(RandomNumber(test.game, lngMax, lngMax), lngMax);
        const std::int32_t lngNumber = RandomNumber(test.game, -3, 2);
        ASSERT_TRUE(lngNumber >= -3 && lngNumber <= 2) << lngNumber;
    }
    const auto aNumbers = Draw(test, 1000, lngMin, lngMax);
    const auto [least, greatest] = std::ranges::minmax(aNumbers);
    EXPECT_LT(least, lngMin / 2);
    EXPECT_GT(greatest, lngMax / 2);
}

TEST(RandomNumber, ReachesEveryValueAboutEquallyOftenWithinOneSecond) {
    for (const int intValues : {2, 9, 81}) {
        TestGame test;
        std::vector<int> aHits(static_cast<std::size_t>(intValues) + 1);
        for (const std::int32_t lngNumber : Draw(test, 1000 * intValues, 1, intValues))
            ++aHits.at(static_cast<std::size_t>(lngNumber));
        EXPECT_EQ(aHits[0], 0);
        for (std::size_t n = 1; n < aHits.size(); ++n)
            EXPECT_NEAR(aHits[n], 1000, 150) << n << " of " << intValues;
    }
    TestGame test;
    const auto aNumbers = Draw(test, 1000, 1, lngMax);
    EXPECT_GT(std::set(aNumbers.begin(), aNumbers.end()).size(), 990U);
}

TEST(RandomNumber, DependsOnTheStateAndOnTheTimeOfDay) {
    TestGame first;
    TestGame same;
    TestGame later;
    TestGame other;
    ++later.desktop.lngTimeOfDay;
    ++other.game.lngRandomState;
    const auto aNumbers = Draw(first, 20, 1, 1000);
    EXPECT_EQ(Draw(same, 20, 1, 1000), aNumbers);
    EXPECT_NE(Draw(later, 20, 1, 1000), aNumbers);
    EXPECT_NE(Draw(other, 20, 1, 1000), aNumbers);
    // The time is mixed in: what was drawn before still counts.
    ++first.desktop.lngTimeOfDay;
    EXPECT_NE(Draw(first, 20, 1, 1000), Draw(later, 20, 1, 1000));
}

TEST(CreateSolution, PutsEveryDigitOnceIntoEachRowColumnAndRegion) {
    TestGame test;
    test.Give(7);
    test.Fill(8, "3");
    const std::string strBoard = AsText(test.game.cells[8]);
    std::set<std::string> solutions;
    for (int intGame = 0; intGame < 200; ++intGame) {
        CreateSolution(test.game);
        std::set<std::string> groups;
        for (int i = 1; i <= intCellCount; ++i) {
            const std::string& strDigit = test.game.cells[i].strSolution;
            ASSERT_TRUE(strDigit.size() == 1 && strDigit >= "1" && strDigit <= "9") << strDigit;
            groups.insert('r' + std::to_string(GetRow(i)) + strDigit);
            groups.insert('c' + std::to_string(GetColumn(i)) + strDigit);
            groups.insert('k' + std::to_string(GetRegion(i)) + strDigit);
        }
        ASSERT_EQ(groups.size(), 243U) << GetSolution(test.game);
        solutions.insert(GetSolution(test.game));
    }
    EXPECT_EQ(solutions.size(), 200U);
    EXPECT_TRUE(test.game.cells[7].blnGiven);
    EXPECT_EQ(AsText(test.game.cells[8]), strBoard);
}

/// The program's generator and the literal one, drawing from games that are alike.
class GeneratorAgainstLiteral : public testing::Test {
protected:
    void SetStart(int intRound) {
        for (TestGame* const test : {&actual, &expected}) {
            test->desktop.lngTimeOfDay = (intRound * 7919) % 86400;
            if (intRound % 100 == 0)
                test->game.lngRandomState = static_cast<std::uint64_t>(intRound) << 40U;
        }
    }

    TestGame actual;
    TestGame expected;
    LiteralGenerator literal{expected.game};
};

TEST_F(GeneratorAgainstLiteral, MakesTheSameGridsWithTheSameDraws) {
    for (int intRound = 0; intRound < 3000; ++intRound) {
        SetStart(intRound);
        CreateSolution(actual.game);
        literal.CreateSolution();
        ASSERT_EQ(GetSolution(actual.game), GetSolution(expected.game)) << intRound;
        ASSERT_EQ(actual.game.lngRandomState, expected.game.lngRandomState) << intRound;
    }
}

TEST_F(GeneratorAgainstLiteral, SucceedsAndFailsInTheSameAttempts) {
    int intFailures = 0;
    for (int intRound = 0; intRound < 3000; ++intRound) {
        SetStart(intRound);
        SolutionGrid grid;
        const bool blnFilled = TryFillGrid(actual.game, grid);
        ASSERT_EQ(blnFilled, literal.TryFillGrid()) << intRound;
        ASSERT_EQ(actual.game.lngRandomState, expected.game.lngRandomState) << intRound;
        for (int j = 0; j < intCellCount; ++j)
            ASSERT_EQ(grid[j], literal[j]) << "cell " << j << " of attempt " << intRound;
        intFailures += blnFilled ? 0 : 1;
    }
    EXPECT_GT(intFailures, 100);
    EXPECT_LT(intFailures, 2900);
}

} // namespace
} // namespace cellora
