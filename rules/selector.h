#pragma once

/// The number selector: nine digits and the eraser, one of them selected.
namespace cellora {

struct Game;

/// Takes the frame from all ten buttons.
void ClearButtonBorders(Game& game);

/// Frames button 1 to 10 and selects its number; 10 is the eraser.
void DoButtonClick(Game& game, int intIndex);

/// Selects the digit 1 when the row is shown, as every game begins.
void SelectFirstNumber(Game& game);

/// Selects a number 0 to 10, which the pointer over the grid shows. Frames of other buttons stay.
void DoNumberSelect(Game& game, int intNumber);

/// A mouse release on a number button; the right button also opens the button's popup.
void picButton_MouseUp(Game& game, int intIndex, bool blnRightButton);

/// Switches the row off, so that no number is selected, or on with the number selected before.
void ShowNumberRow(Game& game, bool blnShow);

/// The row is shown while the player wants it, a puzzle is on the board and the game is not paused.
bool IsNumberRowVisible(const Game& game);

/// Whether "Highlight" can be chosen for the selected number, and whether it is on for it.
bool CanHighlight(const Game& game);
bool IsHighlighted(const Game& game);

/// "Highlight": marks every cell that shows the selected digit, or ends the mark when that digit
/// has it already. Nothing of the game changes.
void mnuHighlight_Click(Game& game);

} // namespace cellora
