#include "ui/main/layout_pass.h"

#include <algorithm>
#include <cmath>

namespace cellora {

namespace {

/// What the shown panes take from the window.
struct Shares {
    double dblToolbar;
    double dblStatusBar;
    double dblStatistics;
    double dblSelector;
    double dblGrid;
};

Shares GetShares(const LayoutInput& input) {
    constexpr double dblHiddenStatusBar = 45;
    const auto Scale = [&](double dblTwips) { return ScaleToZoom(dblTwips, input.intZoom); };
    return {.dblToolbar = input.blnToolbarVisible ? dblToolbarHeight : 0,
            .dblStatusBar = input.blnStatusBarVisible ? dblStatusBarHeight : dblHiddenStatusBar,
            .dblStatistics = input.blnStatisticsChecked ? Scale(dblStatisticsWidth) : 0,
            .dblSelector = input.blnSelectorChecked ? Scale(dblSelectorHeight) : 0,
            .dblGrid = Scale(dblGridSize)};
}

/// Grid, selector and statistics stand together, 30 twips up and left of the pane's centre.
LayoutRect PlaceGrid(const LayoutRect& picBorder, const Shares& shares) {
    constexpr double dblOffset = 30;
    return {(picBorder.dblWidth - shares.dblGrid + shares.dblStatistics) / 2 - dblOffset,
            (picBorder.dblHeight - shares.dblGrid - shares.dblSelector) / 2 - dblOffset +
                shares.dblSelector,
            shares.dblGrid, shares.dblGrid};
}

/// For the panes from a place on, in a border pane of that extent of which the other axis's scroll
/// bar covers some.
ScrollRange GetScrollRange(double dblPlace, double dblPanes, double dblBorder, double dblCovered) {
    if (dblPanes <= dblBorder - dblCovered)
        return {};
    return {std::min(dblPlace, 0.0), std::max(dblPlace + dblPanes - dblBorder + dblCovered, 0.0)};
}

void FindScrollRanges(Layout& layout, const Shares& shares) {
    const LayoutRect& border = layout.picBorder;
    const double dblWidth = shares.dblGrid + shares.dblStatistics;
    const double dblHeight = shares.dblGrid + shares.dblSelector;
    // A bar may cover what makes the other one necessary.
    const bool blnDown =
        dblHeight > border.dblHeight ||
        (dblWidth > border.dblWidth && dblHeight > border.dblHeight - dblScrollBarWidth);
    const bool blnAcross = dblWidth > border.dblWidth - (blnDown ? dblScrollBarWidth : 0);
    layout.across = GetScrollRange(layout.picGrid.dblLeft - shares.dblStatistics, dblWidth,
                                   border.dblWidth, blnDown ? dblScrollBarWidth : 0);
    layout.down = GetScrollRange(layout.picGrid.dblTop - shares.dblSelector, dblHeight,
                                 border.dblHeight, blnAcross ? dblScrollBarWidth : 0);
}

} // namespace

Layout ComputeLayout(const LayoutInput& input) {
    constexpr double dblToolbarTop = 15;
    constexpr double dblBorderMargin = 650;
    const Shares shares = GetShares(input);
    Layout layout;
    layout.tbrMain = {0, dblToolbarTop, input.dblWidth, dblToolbarHeight};
    layout.picBorder = {0, shares.dblToolbar, input.dblWidth - dblFrameWidth,
                        input.dblHeight - shares.dblStatusBar - shares.dblToolbar -
                            dblBorderMargin};
    layout.picMenuShadow = {0, 0, input.dblWidth, 0};
    const LayoutRect grid = PlaceGrid(layout.picBorder, shares);
    layout.picGrid = grid;
    // These two have their places whether they are shown or not.
    const double dblSelector = ScaleToZoom(dblSelectorHeight, input.intZoom);
    layout.picButtons = {grid.dblLeft, grid.dblTop - dblSelector, shares.dblGrid, dblSelector};
    const double dblStatistics = ScaleToZoom(dblStatisticsWidth, input.intZoom);
    layout.picStatistics = {grid.dblLeft - dblStatistics, grid.dblTop, dblStatistics,
                            shares.dblGrid};
    FindScrollRanges(layout, shares);
    return layout;
}

std::int16_t GetFitWidth(const LayoutInput& input) {
    constexpr double dblMargin = 180;
    const Shares shares = GetShares(input);
    return static_cast<std::int16_t>(
        std::lround(shares.dblGrid + dblMargin + shares.dblStatistics));
}

std::int16_t GetFitHeight(const LayoutInput& input) {
    const Shares shares = GetShares(input);
    return static_cast<std::int16_t>(std::lround(shares.dblGrid + dblFrameHeight +
                                                 shares.dblStatusBar + shares.dblToolbar +
                                                 shares.dblSelector));
}

std::int16_t GetLargestZoom(const LayoutInput& input) {
    std::int16_t intLargest = aZoomSteps.front();
    for (const std::int16_t intZoom : aZoomSteps) {
        LayoutInput zoomed = input;
        zoomed.intZoom = intZoom;
        if (GetFitWidth(zoomed) <= input.dblWidth && GetFitHeight(zoomed) <= input.dblHeight)
            intLargest = intZoom;
    }
    return intLargest;
}

double ScaleToZoom(double dblTwips, std::int16_t intZoom) {
    return std::round(dblTwips * intZoom / intPlainZoom / intTwipsPerPixel) * intTwipsPerPixel;
}

} // namespace cellora
