#include "ui/layout_pass.h"

#include <gtest/gtest.h>

namespace cellora {

void PrintTo(const LayoutRect& rect, std::ostream* stream) {
    *stream << rect.dblLeft << ", " << rect.dblTop << ": " << rect.dblWidth << " x "
            << rect.dblHeight;
}

namespace {

/// What a window of 12120 x 9690 twips looks like with those panes, and the size that fits them.
struct Combination {
    bool blnToolbar;
    bool blnStatusBar;
    bool blnStatistics;
    bool blnSelector;
    double dblBorderTop;
    double dblBorderHeight;
    double dblGridLeft;
    double dblGridTop;
    int intFitWidth;
    int intFitHeight;

    LayoutInput GetInput(double dblWidth, double dblHeight) const {
        return {dblWidth, dblHeight, blnToolbar, blnStatusBar, blnStatistics, blnSelector};
    }
};

constexpr Combination aCombinations[] = {
    {true, true, true, true, 480, 8185, 4470, 942.5, 10650, 8775},
    {true, true, true, false, 480, 8185, 4470, 695, 10650, 8280},
    {true, true, false, true, 480, 8185, 2602.5, 942.5, 6915, 8775},
    {true, true, false, false, 480, 8185, 2602.5, 695, 6915, 8280},
    {true, false, true, true, 480, 8515, 4470, 1107.5, 10650, 8445},
    {true, false, true, false, 480, 8515, 4470, 860, 10650, 7950},
    {true, false, false, true, 480, 8515, 2602.5, 1107.5, 6915, 8445},
    {true, false, false, false, 480, 8515, 2602.5, 860, 6915, 7950},
    {false, true, true, true, 0, 8665, 4470, 1182.5, 10650, 8295},
    {false, true, true, false, 0, 8665, 4470, 935, 10650, 7800},
    {false, true, false, true, 0, 8665, 2602.5, 1182.5, 6915, 8295},
    {false, true, false, false, 0, 8665, 2602.5, 935, 6915, 7800},
    {false, false, true, true, 0, 8995, 4470, 1347.5, 10650, 7965},
    {false, false, true, false, 0, 8995, 4470, 1100, 10650, 7470},
    {false, false, false, true, 0, 8995, 2602.5, 1347.5, 6915, 7965},
    {false, false, false, false, 0, 8995, 2602.5, 1100, 6915, 7470},
};

class LayoutTest : public testing::TestWithParam<Combination> {};

TEST_P(LayoutTest, PlacesThePanes) {
    const Combination& panes = GetParam();
    const Layout layout = ComputeLayout(panes.GetInput(12120, 9690));
    const double x = panes.dblGridLeft;
    const double y = panes.dblGridTop;
    EXPECT_EQ(layout.tbrMain, (LayoutRect{0, 15, 12120, 480}));
    EXPECT_EQ(layout.picBorder, (LayoutRect{0, panes.dblBorderTop, 12000, panes.dblBorderHeight}));
    EXPECT_EQ(layout.picMenuShadow, (LayoutRect{0, 0, 12120, 0}));
    EXPECT_EQ(layout.picGrid, (LayoutRect{x, y, 6735, 6735}));
    // Hidden panes have a place as well.
    EXPECT_EQ(layout.picButtons, (LayoutRect{x, y - 495, 6735, 495}));
    EXPECT_EQ(layout.picStatistics, (LayoutRect{x - 3735, y, 3735, 6735}));
}

TEST_P(LayoutTest, AFittedWindowIsJustLargeEnough) {
    const Combination& panes = GetParam();
    LayoutInput input = panes.GetInput(12120, 9690);
    EXPECT_EQ(GetFitWidth(input), panes.intFitWidth);
    EXPECT_EQ(GetFitHeight(input), panes.intFitHeight);
    input = panes.GetInput(panes.intFitWidth, panes.intFitHeight);
    const Layout layout = ComputeLayout(input);
    EXPECT_EQ((panes.blnStatistics ? layout.picStatistics : layout.picGrid).dblLeft, 0);
    EXPECT_EQ((panes.blnSelector ? layout.picButtons : layout.picGrid).dblTop, -10);
    EXPECT_EQ(layout.picBorder.dblWidth - layout.picGrid.dblLeft, 6735 + 60);
    EXPECT_EQ(layout.picBorder.dblHeight - layout.picGrid.dblTop, 6735 + 50);
}

INSTANTIATE_TEST_SUITE_P(EveryCombination, LayoutTest, testing::ValuesIn(aCombinations));

TEST(Layout, ATinyWindowGivesNegativeSizesAndKeepsTheGridWhole) {
    const Layout layout = ComputeLayout({.dblWidth = 100, .dblHeight = 200});
    EXPECT_EQ(layout.picBorder, (LayoutRect{0, 480, -20, -1305}));
    EXPECT_EQ(layout.picGrid.dblWidth, 6735);
    EXPECT_LT(layout.picGrid.dblTop, 0);
}

} // namespace

} // namespace cellora
