#include "rules/check.h"

#include <array>
#include <bitset>
#include <string>

#include "core/modCellora.h"
#include "rules/completion.h"

namespace cellora {

namespace {

/// The digits 1 to 9 seen in a region, as bits.
using SeenDigits = std::bitset<10>;

std::array<SeenDigits, 9> GetSeenDigits(const Game& game) {
    std::array<SeenDigits, 9> aSeen;
    for (int i = 1; i <= intCellCount; ++i)
        aSeen[static_cast<std::size_t>(GetRegion(i))].set(
            static_cast<std::size_t>(game.cells[i].GetShownDigit()));
    return aSeen;
}

} // namespace

void PerformCellCheck(Game& game) {
    MarkErrors(game, game.settings.blnCellErrors);
    DoNumberShade(game);
    DoCellCount(game);
}

void CellErrorsShow(Game& game, bool blnShow) {
    game.settings.blnCellErrors = blnShow;
    MarkErrors(game, blnShow);
}

void MarkErrors(Game& game, bool blnShow) {
    int intCount = 0;
    for (Cell& cell : game.cells)
        intCount += MarkCell(game, cell, blnShow) ? 1 : 0;
    game.statistics.lblIncorrectCells =
        blnShow ? std::to_string(intCount) : std::string(strHiddenCount);
}

bool MarkCell(const Game& game, Cell& cell, bool blnShow) {
    cell.wrongMark.blnOpaque = blnShow && cell.IsIncorrect();
    if (cell.wrongMark.blnOpaque)
        cell.wrongMark.lngColor = game.settings.colors[lngColorIncorrectCell];
    return cell.wrongMark.blnOpaque;
}

void ToggleCellErrors(Game& game) {
    CellErrorsShow(game, !game.settings.blnCellErrors);
}

void DoNumberShade(Game& game) {
    SeenDigits everywhere;
    everywhere.set();
    for (const SeenDigits& seen : GetSeenDigits(game))
        everywhere &= seen;
    for (int n = 1; n <= 9; ++n)
        game.traces.blnShaded[n] = everywhere[static_cast<std::size_t>(n)];
}

} // namespace cellora
