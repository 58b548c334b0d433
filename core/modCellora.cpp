#include "core/modCellora.h"

namespace cellora {

namespace {

/// The entries that make sense only with a puzzle on the board.
constexpr MenuItem Game::*const aGameMenu[] = {
    &Game::mnuPrint,      &Game::mnuSave,           &Game::mnuSaveAs,     &Game::mnuNormal,
    &Game::mnuFitWindow,  &Game::mnuNumberSelector, &Game::mnuStatistics, &Game::mnuSolveCell,
    &Game::mnuCellErrors, &Game::mnuSolve,          &Game::mnuPause,
};

constexpr int aGameToolbarButtons[] = {4, 6, 10};

} // namespace

void ResetGrid(Game& game) {
    game.intHighlight = 0;
    for (Cell& cell : game.cells) {
        cell.blnEntryShown = true;
        cell.outline = {.intWidth = 1, .lngColor = game.colors.lngColorGridLines};
        cell.strEntry.clear();
        cell.strSolution.clear();
        cell.strNotes.clear();
    }
}

void ResetCandidate(Game& game) {
    for (Cell& cell : game.cells)
        cell.strNotes.clear();
    game.intTopOutline = 0;
}

void DoEnable(Game& game) {
    for (const auto item : aGameMenu)
        (game.*item).blnEnabled = game.blnGameActive;
    for (const int intButton : aGameToolbarButtons)
        game.tbrMain.blnButtonEnabled[intButton] = game.blnGameActive;
    game.cmdFinished.blnVisible = false;
    game.cmdFinished.strCaption = strViewMistakes;
    game.blnSolvedByComputer = false;
}

void ApplyRegionColor(Game& game, Color lngColor) {
    game.boardColors.lngRegionFill = lngColor;
}

void ApplyGridLineColor(Game& game, Color lngColor) {
    game.boardColors.lngRegionLine = lngColor;
    for (Cell& cell : game.cells)
        cell.outline.lngColor = lngColor;
}

void ApplyUserFontColor(Game& game, Color lngColor) {
    game.boardColors.lngUserText = lngColor;
}

void ApplyComputerFontColor(Game& game, Color lngColor) {
    game.boardColors.lngComputerText = lngColor;
}

} // namespace cellora
