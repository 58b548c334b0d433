#pragma once

class QScrollArea;

/// The pages of the Instructions window. Each call makes a new widget that belongs to the caller.
/// With a usual font every page fits the window; else it scrolls.
namespace cellora {

struct Game;

/// Pictures show parts of the board with the settings of the game.
QScrollArea* MakeInstructionsPage(Game& game);
QScrollArea* MakeControlsPage(Game& game);
QScrollArea* MakeMenusPage(Game& game);
QScrollArea* MakeHistoryPage();

} // namespace cellora
