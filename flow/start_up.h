#pragma once

#include "core/modCellora.h"

/// What the main window takes from the settings file when it loads and leaves there when it
/// unloads.
namespace cellora {

/// The settings file in the program's folder.
std::string GetSettingsFile(const Game& game);

/// Start-up of the main window: folder, colours, cursor option and view choices from the settings,
/// defaults where they are missing or damaged; no game on the board, game commands disabled.
void LoadMainWindow(Game& game);

/// Writes the five view choices.
void UnloadMainWindow(const Game& game);

} // namespace cellora
