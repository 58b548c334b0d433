#pragma once

/// The cell cursor: where it is, how it is drawn and how it disappears.
namespace cellora {

struct Game;

/// Thins the outline of the cell the cursor left and draws the cursor cell's outline thick, in
/// front. Nothing is drawn while the grid is disabled.
void DrawCursor(Game& game);

/// Draws every outline in the colour of the grid lines. The cursor keeps its width and has its own
/// colour again when it is drawn next.
void DrawOutlinesAsLines(Game& game);

/// Moves the cursor to a cell 1 to 81 and draws it.
void MoveCursor(Game& game, int intCell);

/// One step in the given direction; the moves wrap around within the row or the column.
void CursorUp(Game& game);
void CursorDown(Game& game);
void CursorLeft(Game& game);
void CursorRight(Game& game);

/// The player has been idle for a second: starts thinning the cursor where the player wants that.
void tmrCellWait_Timer(Game& game);

/// One step of the thinning; it ends at a width of 1. A paused board stands still.
void tmrCell_Timer(Game& game);

} // namespace cellora
