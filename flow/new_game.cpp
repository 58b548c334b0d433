#include "flow/new_game.h"

#include "core/levels.h"
#include "core/modCreateSudoku.h"
#include "flow/clock.h"
#include "flow/game_file.h"
#include "play/check.h"
#include "play/cursor.h"
#include "play/selector.h"

namespace cellora {

namespace {

void MakePuzzle(Game& game, const std::string& strDifficulty) {
    ResetGrid(game);
    ResetCandidate(game);
    HideSolution(game);
    CreateSolution(game);
    ShowPartial(game, strDifficulty);
}

void CenterCursor(Game& game) {
    game.intCursorCell = intCenterCell;
    game.intPrevCursorCell = intCenterCell;
    DrawCursor(game);
    RestartTimer(game.desktop, Timer::tmrCellWait);
}

void StartClock(Game& game) {
    game.desktop.EnableTimer(Timer::tmr, false);
    game.lngSeconds = game.lngMinutes = game.lngHours = 0;
    DoTime(game);
    game.strGameFile.clear();
    game.blnGameChanged = true;
    game.desktop.EnableTimer(Timer::tmr, true);
}

} // namespace

void NewGame(Game& game) {
    AskToSave(game);
    game.desktop.SetMousePointer(MousePointer::Hourglass);
    game.desktop.ShowModal(ModalWindow::frmNew);
    game.desktop.SetMousePointer(MousePointer::Default);
}

void StartNewGame(Game& game, const std::string& strDifficulty) {
    game.desktop.SetMousePointer(MousePointer::Hourglass);
    game.picGrid.blnEnabled = true;
    game.picButtons.blnEnabled = true;
    MakePuzzle(game, strDifficulty);
    CenterCursor(game);
    game.blnGameActive = true;
    DoEnable(game);
    game.picGrid.blnVisible = true;
    game.desktop.UnloadWindow(ModalWindow::frmNew);
    ShowGamePanes(game);
    PerformCellCheck(game);
    StartClock(game);
}

void ShowGamePanes(Game& game) {
    game.picStatistics.blnVisible = game.mnuStatistics.blnChecked;
    game.picButtons.blnVisible = game.mnuNumberSelector.blnChecked;
    if (game.picButtons.blnVisible)
        DoButtonClick(game, 1);
}

} // namespace cellora
