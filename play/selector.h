#pragma once

#include "core/modCellora.h"

/// The number selector: nine digits and the eraser, one of them selected.
namespace cellora {

/// Takes the frame from all ten buttons.
void ClearButtonBorders(Game& game);

/// Frames button 1 to 10 and selects its number; 10 is the eraser.
void DoButtonClick(Game& game, int intIndex);

/// Selects a number 0 to 10: the pointer over the grid and the quick entry of the cell popup
/// follow. Frames of other buttons stay.
void DoNumberSelect(Game& game, int intNumber);

/// A mouse release on a number button; the right button also opens the button's popup.
void picButton_MouseUp(Game& game, int intIndex, bool blnRightButton);

/// Switches the row off, so that no number is selected, or on with the number selected before.
void ShowNumberRow(Game& game, bool blnShow);

/// Whether "Highlight" can be chosen for the selected number, and whether it is on for it.
bool CanHighlight(const Game& game);
bool IsHighlighted(const Game& game);

/// "Highlight": marks every cell that shows the selected digit, or ends the mark when that digit
/// has it already. Nothing of the game changes.
void mnuHighlight_Click(Game& game);

} // namespace cellora
