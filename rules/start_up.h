#pragma once

#include <string>

/// What the main window takes from the settings file when it loads and leaves there when it
/// unloads.
namespace cellora {

struct Game;

/// The settings file in the program's folder.
std::string GetSettingsFile(const Game& game);

/// Start-up of the main window: reads the settings. A game folder that is gone becomes the
/// program's own, in the file too.
void LoadMainWindow(Game& game);

/// Tells the player, once the window is ready, of settings that are there and could not be read.
/// The run goes on with the defaults and writes no settings.
void TellOfSettings(Game& game);

/// Writes the five view choices and the zoom.
void UnloadMainWindow(const Game& game);

} // namespace cellora
