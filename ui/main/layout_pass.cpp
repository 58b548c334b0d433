#include "ui/main/layout_pass.h"

#include <cmath>

namespace cellora {

namespace {

/// What the shown panes take from the window.
struct Shares {
    double dblToolbar;
    double dblStatusBar;
    double dblStatistics;
    double dblSelector;
};

Shares GetShares(const LayoutInput& input) {
    constexpr double dblHiddenStatusBar = 45;
    return {.dblToolbar = input.blnToolbarVisible ? dblToolbarHeight : 0,
            .dblStatusBar = input.blnStatusBarVisible ? dblStatusBarHeight : dblHiddenStatusBar,
            .dblStatistics = input.blnStatisticsChecked ? dblStatisticsWidth : 0,
            .dblSelector = input.blnSelectorChecked ? dblSelectorHeight : 0};
}

/// Grid, selector and statistics stand together, 30 twips up and left of the pane's centre.
LayoutRect PlaceGrid(const LayoutRect& picBorder, const Shares& shares) {
    constexpr double dblOffset = 30;
    return {(picBorder.dblWidth - dblGridSize + shares.dblStatistics) / 2 - dblOffset,
            (picBorder.dblHeight - dblGridSize - shares.dblSelector) / 2 - dblOffset +
                shares.dblSelector,
            dblGridSize, dblGridSize};
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
    layout.picButtons = {grid.dblLeft, grid.dblTop - dblSelectorHeight, dblGridSize,
                         dblSelectorHeight};
    layout.picStatistics = {grid.dblLeft - dblStatisticsWidth, grid.dblTop, dblStatisticsWidth,
                            dblGridSize};
    return layout;
}

std::int16_t GetFitWidth(const LayoutInput& input) {
    constexpr double dblMargin = 180;
    return static_cast<std::int16_t>(
        std::lround(dblGridSize + dblMargin + GetShares(input).dblStatistics));
}

std::int16_t GetFitHeight(const LayoutInput& input) {
    const Shares shares = GetShares(input);
    return static_cast<std::int16_t>(std::lround(dblGridSize + dblFrameHeight +
                                                 shares.dblStatusBar + shares.dblToolbar +
                                                 shares.dblSelector));
}

} // namespace cellora
