#pragma once

#include <cstdint>

#include "ui/desktop/twips.h"

/// Where the main window's panes stand. All measures are twips; divisions are exact, the window
/// rounds positions to its pixels.
namespace cellora {

/// Sizes of the panes by design.
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
};

struct LayoutRect {
    double dblLeft = 0;
    double dblTop = 0;
    double dblWidth = 0;
    double dblHeight = 0;
};

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
};

Layout ComputeLayout(const LayoutInput& input);

/// The outer size, in the measure of `LayoutInput`, that is just large enough for the panes shown.
std::int16_t GetFitWidth(const LayoutInput& input);
std::int16_t GetFitHeight(const LayoutInput& input);

} // namespace cellora
