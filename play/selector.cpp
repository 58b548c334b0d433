#include "play/selector.h"

namespace cellora {

namespace {

bool IsDigit(int intNumber) {
    return intNumber >= 1 && intNumber <= 9;
}

} // namespace

void ClearButtonBorders(Game& game) {
    for (NumberButton& button : game.picButton)
        button.blnFramed = false;
}

void DoButtonClick(Game& game, int intIndex) {
    ClearButtonBorders(game);
    game.picButton[intIndex].blnFramed = true;
    DoNumberSelect(game, intIndex);
    RestartTimer(game.desktop, Timer::tmrCellWait);
}

void DoNumberSelect(Game& game, int intNumber) {
    game.intLastSelectedNumber = game.intSelectedNumber;
    game.intSelectedNumber = static_cast<std::int16_t>(intNumber);
    for (PopupItem& item : game.mnuA)
        item.blnVisible = false;
    game.mnuAsepVisible = false;
    game.intPointer = intNumber;
    if (!IsDigit(intNumber))
        return;
    game.mnuA[intNumber].blnVisible = true;
    game.mnuAsepVisible = true;
    game.picButton[intNumber].blnFramed = true;
}

void picButton_MouseUp(Game& game, int intIndex, bool blnRightButton) {
    DoButtonClick(game, intIndex);
    if (blnRightButton)
        game.desktop.ShowPopup(PopupMenu::mnuButton);
}

void ShowNumberRow(Game& game, bool blnShow) {
    game.picButtons.blnVisible = blnShow;
    game.mnuNumberSelector.blnChecked = blnShow;
    if (!blnShow) {
        DoNumberSelect(game, 0);
        return;
    }
    if (game.intLastSelectedNumber == 0)
        game.intLastSelectedNumber = 1;
    DoNumberSelect(game, game.intLastSelectedNumber);
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
