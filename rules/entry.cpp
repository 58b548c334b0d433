#include "rules/entry.h"

#include <string>

#include "core/desktop.h"
#include "core/modCellora.h"
#include "rules/check.h"
#include "rules/cursor.h"
#include "rules/notes.h"
#include "rules/selector.h"

namespace cellora {

namespace {

struct KeyAction {
    std::int16_t intKeyCode;
    void (*fnAction)(Game&);
};

constexpr KeyAction aKeyActions[] = {
    {intKeyBackspace, DoCellClear}, {intKeySpace, DoCellClear}, {intKeyDelete, DoCellClear},
    {intKeyLeft, CursorLeft},       {intKeyUp, CursorUp},       {intKeyRight, CursorRight},
    {intKeyDown, CursorDown},
};

void DoKeyAction(Game& game, std::int16_t intKeyCode) {
    for (const KeyAction& action : aKeyActions)
        if (action.intKeyCode == intKeyCode)
            action.fnAction(game);
    if (GetKeyDigit(intKeyCode) != 0)
        DoCellEntry(game, intKeyCode);
}

void PlaceSelectedNumber(Game& game, Cell& cell) {
    cell.strNotes.clear();
    cell.strEntry =
        game.intSelectedNumber == intEraser ? "" : std::to_string(game.intSelectedNumber);
    PerformCellCheck(game);
    game.blnGameChanged = true;
}

} // namespace

int GetKeyDigit(std::int16_t intKeyCode) {
    for (const std::int16_t intFirst : {intKeyDigit1, intKeyKeypad1}) {
        if (intKeyCode >= intFirst && intKeyCode < intFirst + 9)
            return intKeyCode - intFirst + 1;
    }
    return 0;
}

void CellClick(Game& game, int intIndex, MouseButton button) {
    MoveCursor(game, intIndex);
    if (button == MouseButton::Right) {
        ShowCellPopup(game);
        return;
    }
    if (TakesClick(game, intIndex))
        PlaceSelectedNumber(game, game.cells[intIndex]);
    game.desktop.RestartTimer(Timer::tmrCellWait);
}

bool TakesClick(const Game& game, int intCell) {
    return game.settings.blnNumberSelector && !game.cells[intCell].blnGiven;
}

void DoKeyDown(Game& game, std::int16_t intKeyCode) {
    if (!game.IsInPlay())
        return;
    DoKeyAction(game, intKeyCode);
    DrawCursor(game);
    PerformCellCheck(game);
    game.desktop.RestartTimer(Timer::tmrCellWait);
}

void DoCellEntry(Game& game, std::int16_t intKeyCode) {
    Cell& cell = game.cells[game.intCursorCell];
    if (!cell.blnGiven) {
        const int intDigit = GetKeyDigit(intKeyCode);
        game.blnGameChanged = true;
        cell.strNotes.clear();
        cell.strEntry = std::to_string(intDigit);
        if (IsNumberRowVisible(game))
            DoButtonClick(game, intDigit);
    }
    game.desktop.RestartTimer(Timer::tmrCellWait);
}

void DoCellClear(Game& game) {
    Cell& cell = game.cells[game.intCursorCell];
    cell.strEntry.clear();
    cell.strNotes.clear();
    DoButtonClick(game, intEraser);
}

} // namespace cellora
