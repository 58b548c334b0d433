#pragma once

#include <cstdint>

/// The zoom of the board. The player's choice is kept as it is; where the screen does not hold it
/// the largest step it holds, `intLargest`, is shown instead, and every change begins there.
/// Without a puzzle nothing is zoomed.
namespace cellora {

struct Game;

/// In percent, never more than `intLargest`.
std::int16_t GetShownZoom(const Game& game, std::int16_t intLargest);

/// A step up or down, if there is one.
void ZoomIn(Game& game, std::int16_t intLargest);
void ZoomOut(Game& game, std::int16_t intLargest);

/// Back to 100, or to what the screen holds of it.
void ZoomReset(Game& game, std::int16_t intLargest);

/// The step nearest to a percentage.
void ZoomTo(Game& game, int intPercent, std::int16_t intLargest);

} // namespace cellora
