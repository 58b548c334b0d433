#include "core/modCellora.h"

namespace cellora {

void ResetGrid(Game& game) {
    game.intHighlight = 0;
    for (Cell& cell : game.cells) {
        cell.blnEntryShown = true;
        cell.outline = {};
        cell.strEntry.clear();
        cell.strSolution.clear();
        cell.strNotes.clear();
    }
}

void ResetCandidate(Game& game) {
    for (Cell& cell : game.cells)
        cell.strNotes.clear();
    game.traces.intTopOutline = 0;
}

void DoEnable(Game& game) {
    game.cmdFinished = FinishButton::Hidden;
    game.blnSolvedByComputer = false;
    game.blnSaveOwed = false;
    ++game.intGames;
}

} // namespace cellora
