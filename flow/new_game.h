#pragma once

#include <string>

#include "core/modCellora.h"

/// How a fresh game comes onto the board.
namespace cellora {

/// The New Game command: shows the New Game dialog.
void NewGame(Game& game);

/// The dialog's OK: puts a new puzzle of that level on the board and starts the clock. It closes
/// the dialog on its way.
void StartNewGame(Game& game, const std::string& strDifficulty);

/// Shows the statistics pane and the number selector as their menu entries are ticked, and selects
/// the digit 1 when the selector is shown.
void ShowGamePanes(Game& game);

} // namespace cellora
