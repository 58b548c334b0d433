#pragma once

#include "core/modCellora.h"

/// Pencil notes of a cell and the popup that edits them. A note is a digit and a blank; the notes
/// of a cell stand in the order they were added. Notes never count as a change of the game.
namespace cellora {

/// Builds the popup for the cursor cell, stops the cursor's idle timer and opens the popup. A given
/// cell has no popup.
void ShowCellPopup(Game& game);

/// Appends a note 1 to 9 to the cursor cell; the popup offers it only where it is missing.
void CandidateAdd(Game& game, int intDigit);

/// Drops every note of that digit from the cursor cell; the others keep their order.
void CandidateRemove(Game& game, int intDigit);

/// The popup's commands; they follow the captions the popup was built with.
void mnuA_Click(Game& game, int intDigit);
void mnuC_Click(Game& game, int intDigit);
void mnuRemoveAll_Click(Game& game);

} // namespace cellora
