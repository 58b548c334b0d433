#pragma once

/// The pass over the whole board that follows every change.
namespace cellora {

struct Cell;
struct Game;

/// Marks wrong entries where the player wants that, shades the number buttons and recounts the
/// cells, which may end the game: message boxes and windows can open before it returns.
void PerformCellCheck(Game& game);

/// Marks and counts the incorrect cells, or hides marks and count.
void MarkErrors(Game& game, bool blnShow);

/// The same as the player's choice: the check mark of "Cell Errors" follows.
void CellErrorsShow(Game& game, bool blnShow);

/// Marks the cell if marks are shown and its entry is wrong, else takes its mark away. True when it
/// is marked.
bool MarkCell(const Game& game, Cell& cell, bool blnShow);

/// The "Cell Errors" command.
void ToggleCellErrors(Game& game);

/// Shades the button of every digit that can be seen in all nine regions, right or wrong.
void DoNumberShade(Game& game);

} // namespace cellora
