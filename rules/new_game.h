#pragma once

#include <string>

/// How a fresh game comes onto the board.
namespace cellora {

struct Game;

/// The New Game command: shows the New Game dialog.
void NewGame(Game& game);

/// The dialog's OK: puts a new puzzle of that level on the board and starts the clock. It closes
/// the dialog on its way.
void StartNewGame(Game& game, const std::string& strDifficulty);

} // namespace cellora
