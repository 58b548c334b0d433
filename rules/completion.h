#pragma once

#include <cstdint>

/// The counts of the statistics pane and the end of a game.
namespace cellora {

struct Game;

/// Recounts the cells and, when none is empty, ends the game: stops the clock, announces the
/// result and locks the board. Everything after a box runs once the box is closed.
void DoCellCount(Game& game);

/// The entries that differ from the solution, over all 81 cells.
std::int16_t CountMistakes(const Game& game);

} // namespace cellora
