#include "rules/new_game.h"

#include "core/desktop.h"
#include "core/levels.h"
#include "core/modCellora.h"
#include "core/modCreateSudoku.h"
#include "rules/check.h"
#include "rules/cursor.h"
#include "rules/game_file.h"
#include "rules/selector.h"

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
    game.desktop.RestartTimer(Timer::tmrCellWait);
}

void StartClock(Game& game) {
    game.desktop.EnableTimer(Timer::tmr, false);
    game.lngSeconds = game.lngMinutes = game.lngHours = 0;
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
    game.phase = Phase::Playing;
    MakePuzzle(game, strDifficulty);
    CenterCursor(game);
    DoEnable(game);
    game.desktop.UnloadWindow(ModalWindow::frmNew);
    SelectFirstNumber(game);
    PerformCellCheck(game);
    StartClock(game);
}

} // namespace cellora
