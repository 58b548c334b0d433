#pragma once

#include <cstdint>
#include <string>

#include "store/hall_of_fame_form.h"

/// The counts of the statistics pane and the end of a game.
namespace cellora {

struct Game;

/// Recounts the cells and, when none is empty, ends the game: stops the clock, announces the
/// result and locks the board. Everything after a box runs once the box is closed.
void DoCellCount(Game& game);

/// Notes with the waiting score the name it is about to be entered with. Kept on disk before the
/// entry is made, it tells after a crash whether it was made.
void NoteName(Game& game, const std::string& strName);

/// Ends a finished game again whose score was left waiting, unless its entry was made all the same
/// and is among these of the game's level.
void EndWaitingGame(Game& game, const LevelEntries& entries);

/// The entries that differ from the solution, over all 81 cells.
std::int16_t CountMistakes(const Game& game);

} // namespace cellora
