#pragma once

#include <array>
#include <cstddef>

#include "core/modCellora.h"

/// What the Options dialog edits, taken from the game and given back to it.
namespace cellora {

/// The eight colours, numbered as the dialog's buttons are.
enum class ColorSlot {
    GridBackground,
    ScreenBackground,
    GridLines,
    FontUser,
    FontComputer,
    GridCursor,
    GridIncorrectCell,
    GridX,
};

inline constexpr std::size_t lngColorSlotCount = 8;

struct Options {
    std::array<Color, lngColorSlotCount> lngColors{};
    bool blnDisappearingCursor = false;

    Color& operator[](ColorSlot slot) { return lngColors[static_cast<std::size_t>(slot)]; }
    Color operator[](ColorSlot slot) const { return lngColors[static_cast<std::size_t>(slot)]; }

    bool operator==(const Options&) const = default;
};

/// The "Options..." command: shows the dialog, then draws the cursor afresh.
void ShowOptions(Game& game);

/// The colours as they are drawn now. The window background is that of the panes, which can differ
/// from the colour the program started with.
Options ReadOptions(const Game& game);

/// Colours the board and its surroundings, restarts the cursor's idle time and writes the settings
/// file. Checks the cells while a grid is in play, which may end the game: message boxes and
/// windows can open before it returns.
void ApplyOptions(Game& game, const Options& options);

} // namespace cellora
