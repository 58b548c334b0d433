#include "rules/cursor.h"

#include "core/desktop.h"
#include "core/modCellora.h"

namespace cellora {

namespace {

constexpr int intCursorWidth = 4;

void DrawCursorOutline(Game& game, int intWidth) {
    game.cells[game.intCursorCell].outline = {.intWidth = intWidth, .blnCursorColor = true};
    game.traces.intTopOutline = game.intCursorCell;
}

} // namespace

void DrawCursor(Game& game) {
    if (game.phase == Phase::Finished)
        return;
    game.cells[game.intPrevCursorCell].outline = {};
    DrawCursorOutline(game, intCursorWidth);
}

void DrawOutlinesAsLines(Game& game) {
    for (Cell& cell : game.cells)
        cell.outline.blnCursorColor = false;
}

void MoveCursor(Game& game, int intCell) {
    game.intPrevCursorCell = game.intCursorCell;
    game.intCursorCell = static_cast<std::int16_t>(intCell);
    DrawCursor(game);
}

void CursorUp(Game& game) {
    const int c = game.intCursorCell;
    MoveCursor(game, c - 9 < 1 ? c + 72 : c - 9);
}

void CursorDown(Game& game) {
    const int c = game.intCursorCell;
    MoveCursor(game, c + 9 > intCellCount ? c - 72 : c + 9);
}

void CursorLeft(Game& game) {
    const int c = game.intCursorCell;
    MoveCursor(game, GetColumn(c) == 0 ? c + 8 : c - 1);
}

void CursorRight(Game& game) {
    const int c = game.intCursorCell;
    MoveCursor(game, GetColumn(c) == 8 ? c - 8 : c + 1);
}

void tmrCellWait_Timer(Game& game) {
    const bool blnDisappears = game.settings.intCursorOption == 1;
    game.desktop.EnableTimer(Timer::tmrCellWait, !blnDisappears);
    game.desktop.EnableTimer(Timer::tmrCell, blnDisappears);
}

void tmrCell_Timer(Game& game) {
    if (game.phase == Phase::Paused)
        return;
    const int intWidth = game.cells[game.intCursorCell].outline.intWidth;
    if (intWidth == 1)
        game.desktop.EnableTimer(Timer::tmrCell, false);
    else
        DrawCursorOutline(game, intWidth - 1);
}

} // namespace cellora
