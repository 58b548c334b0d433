#pragma once

#include <cstdint>

#include "core/zoom.h"
#include "ui/desktop/twips.h"

/// Where the main window's panes stand. All measures are twips; divisions are exact, the window
/// rounds positions to its pixels.
namespace cellora {

/// Sizes of the panes by design, at a zoom of 100 %.
inline constexpr double dblSelectorHeight = 495;
inline constexpr double dblStatisticsWidth = 3735;
inline constexpr double dblToolbarHeight = 480;
inline constexpr double dblStatusBarHeight = 375;

/// What the frame and the border pane's margins take across, and what frame, title bar and menu bar
/// take down, in the window that the layout is computed for. A window with other decorations is
/// measured by its inner size plus these.
inline constexpr double dblFrameWidth = 120;
inline constexpr double dblFrameHeight = 690;

struct LayoutInput {
    double dblWidth = 0;  ///< inner width + dblFrameWidth
    double dblHeight = 0; ///< height below the menu bar + dblFrameHeight
    bool blnToolbarVisible = true;
    bool blnStatusBarVisible = true;
    bool blnStatisticsChecked = true;
    bool blnSelectorChecked = true;
    std::int16_t intZoom = intPlainZoom; ///< of grid, selector and statistics
};

struct LayoutRect {
    double dblLeft = 0;
    double dblTop = 0;
    double dblWidth = 0;
    double dblHeight = 0;
};

/// How far the panes in the border pane can be moved along one axis until all of them has been
/// seen: up to `dblFirst` the one way, which is negative, and `dblLast` the other. Both are 0 where
/// they fit.
struct ScrollRange {
    double dblFirst = 0;
    double dblLast = 0;
};

/// The width of the scroll bars that stand in the border pane where the panes do not fit.
inline constexpr double dblScrollBarWidth = 180;

/// `tbrMain`, `picBorder` and `picMenuShadow` are relative to the area below the menu bar, the
/// others to the border pane. A small window gives sizes below zero; such a step is left out by the
/// window.
struct Layout {
    LayoutRect tbrMain;
    LayoutRect picBorder;
    LayoutRect picMenuShadow;
    LayoutRect picGrid;
    LayoutRect picButtons;
    LayoutRect picStatistics;
    ScrollRange across;
    ScrollRange down;
};

Layout ComputeLayout(const LayoutInput& input);

/// The outer size, in the measure of `LayoutInput`, that is just large enough for the panes shown.
std::int16_t GetFitWidth(const LayoutInput& input);
std::int16_t GetFitHeight(const LayoutInput& input);

/// The largest zoom at which the panes shown fit into a window of the input's size; the smallest
/// there is where none of them does.
std::int16_t GetLargestZoom(const LayoutInput& input);

/// A size of the design at a zoom in percent, in whole pixels, so that the panes meet.
double ScaleToZoom(double dblTwips, std::int16_t intZoom);

} // namespace cellora
