#pragma once

/// Pencil notes of a cell and the popup that edits them. A note is a digit and a blank; the notes
/// of a cell stand in the order they were added. Notes never count as a change of the game.
namespace cellora {

struct Game;

struct CellPopupView;

/// Stops the cursor's idle timer and opens the cursor cell's popup. A given cell has no popup.
void ShowCellPopup(Game& game);

/// The entries of the cursor cell's popup: each of its first five notes is offered for removal and,
/// while there are fewer, every other digit as a new note. The selected digit is offered first.
CellPopupView MakeCellPopup(const Game& game);

/// Appends a note 1 to 9 to the cursor cell; the popup offers it only where it is missing.
void CandidateAdd(Game& game, int intDigit);

/// Drops every note of that digit from the cursor cell; the others keep their order.
void CandidateRemove(Game& game, int intDigit);

/// The popup's commands. A digit is removed where the cell's popup offers that, else added.
void mnuC_Click(Game& game, int intDigit);
void mnuRemoveAll_Click(Game& game);

} // namespace cellora
