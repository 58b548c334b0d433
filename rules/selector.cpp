#include "rules/selector.h"

#include "core/desktop.h"
#include "core/modCellora.h"

namespace cellora {

namespace {

bool IsDigit(int intNumber) {
    return intNumber >= 1 && intNumber <= 9;
}

} // namespace

void ClearButtonBorders(Game& game) {
    game.traces.blnFramed.fill(false);
}

void DoButtonClick(Game& game, int intIndex) {
    ClearButtonBorders(game);
    game.traces.blnFramed[intIndex] = true;
    DoNumberSelect(game, intIndex);
    game.desktop.RestartTimer(Timer::tmrCellWait);
}

void SelectFirstNumber(Game& game) {
    if (IsNumberRowVisible(game))
        DoButtonClick(game, 1);
}

void DoNumberSelect(Game& game, int intNumber) {
    game.intLastSelectedNumber = game.intSelectedNumber;
    game.intSelectedNumber = static_cast<std::int16_t>(intNumber);
    game.traces.intPointer = intNumber;
    if (IsDigit(intNumber))
        game.traces.blnFramed[intNumber] = true;
}

void picButton_MouseUp(Game& game, int intIndex, bool blnRightButton) {
    DoButtonClick(game, intIndex);
    if (blnRightButton)
        game.desktop.ShowPopup(PopupMenu::mnuButton);
}

void ShowNumberRow(Game& game, bool blnShow) {
    game.settings.blnNumberSelector = blnShow;
    if (!blnShow) {
        DoNumberSelect(game, 0);
        return;
    }
    if (game.intLastSelectedNumber == 0)
        game.intLastSelectedNumber = 1;
    DoNumberSelect(game, game.intLastSelectedNumber);
}

bool IsNumberRowVisible(const Game& game) {
    return game.settings.blnNumberSelector && game.blnGameActive() && game.phase != Phase::Paused;
}

bool CanHighlight(const Game& game) {
    return IsDigit(game.intSelectedNumber);
}

bool IsHighlighted(const Game& game) {
    return CanHighlight(game) && game.intHighlight == game.intSelectedNumber;
}

void mnuHighlight_Click(Game& game) {
    if (CanHighlight(game))
        game.intHighlight = IsHighlighted(game) ? std::int16_t{0} : game.intSelectedNumber;
}

} // namespace cellora
