#pragma once

#include "core/settings.h"

/// What the Options dialog edits.
namespace cellora {

struct Game;

/// The "Options..." command: shows the dialog, then draws the cursor afresh.
void ShowOptions(Game& game);

/// Takes the colours and the cursor option from `options`, draws the board with them, restarts the
/// cursor's idle time and writes the settings file. Checks the cells of a game in play, which may
/// end the game: message boxes and windows can open before it returns.
void ApplyOptions(Game& game, const Settings& options);

} // namespace cellora
