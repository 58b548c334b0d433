#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>

#include "core/modCommon_Constants.h"
#include "core/zoom.h"

/// What the settings file keeps. A fresh object holds the defaults of values that are missing.
namespace cellora {

/// The eight colours of the board and its surroundings, numbered as the Options' buttons are.
enum ColorSlot : std::size_t {
    lngColorGridBackground,   ///< and of the statistics pane
    lngColorScreenBackground, ///< round the grid, and of the number selector
    lngColorGridLines,
    lngColorFontUser,
    lngColorFontComputer,
    lngColorGridCursor,
    lngColorIncorrectCell,
    lngColorGridX, ///< the fill of the regions that form an X
};

inline constexpr std::size_t lngColorSlotCount = lngColorGridX + 1;

using Colors = std::array<Color, lngColorSlotCount>;

struct Settings {
    Colors colors = {lngColorWhite, lngColorWhite, lngColorBlack, lngColorBlue,
                     lngColorBlack, lngColorBlue,  lngColorRed,   lngColorLightYellow};

    std::int16_t intCursorOption = 0; ///< 1: the cursor disappears; the file may hold any number

    // The view, as the View menu is ticked.
    bool blnStatusBar = true;
    bool blnToolbar = true;
    bool blnNumberSelector = true;
    bool blnStatistics = true;
    bool blnCellErrors = true;

    std::int16_t intZoom = intPlainZoom; ///< of the board, one of `aZoomSteps`

    double dblStartup = 0;     ///< exactly 1: the Instructions open at the start
    std::string strGameFolder; ///< where the file dialogs begin; it may not exist

    std::string strUnread; ///< why a file that is there could not be read, one sentence, else empty
};

} // namespace cellora
