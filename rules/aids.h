#pragma once

#include <cstdint>

/// Digits the program shows: one cell for a penalty, the whole puzzle, and the two views of a game
/// that ended with mistakes.
namespace cellora {

struct Game;

/// The main window's own draw: a whole number from lo to hi, every value equally likely.
std::int16_t RandomInRange(Game& game, std::int16_t lo, std::int16_t hi);

/// Asks, then reveals one empty cell at random and charges 30 seconds. Expects a game in play,
/// which has an empty cell.
void SolveOneCell(Game& game);

/// Asks, then reveals every empty cell and ends the game without a place in the Top Ten. Expects a
/// game in play.
void SolvePuzzle(Game& game);

/// Switches a board to the view that the finish button names. Expects a game that ended with
/// mistakes.
void ToggleSolutionView(Game& game);

/// The view of a game that ended with mistakes: the player's wrong digits, marked, and the solution
/// in every other cell.
void ShowMistakesView(Game& game);

} // namespace cellora
