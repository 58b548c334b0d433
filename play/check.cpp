#include "play/check.h"

#include <array>
#include <bitset>
#include <cassert>
#include <string>

#include "core/text.h"

namespace cellora {

namespace {

/// The digits 1 to 9 seen in a region, as bits.
using SeenDigits = std::bitset<10>;

std::array<SeenDigits, 9> GetSeenDigits(const Game& game) {
    std::array<SeenDigits, 9> aSeen;
    for (int i = 1; i <= intCellCount; ++i) {
        const std::string_view strShown = Trim(game.cells[i].GetShownText());
        if (strShown.size() == 1)
            aSeen[static_cast<std::size_t>(GetRegion(i))].set(
                static_cast<std::size_t>(GetDigitValue(strShown.front())));
    }
    return aSeen;
}

} // namespace

void PerformCellCheck(Game& game) {
    CellErrorsShow(game, game.mnuCellErrors.blnChecked);
    DoNumberShade(game);
    assert(game.fnDoCellCount);
    game.fnDoCellCount(game);
}

void CellErrorsShow(Game& game, bool blnShow) {
    game.mnuCellErrors.blnChecked = blnShow;
    int intCount = 0;
    for (Cell& cell : game.cells) {
        cell.wrongMark.blnOpaque = blnShow && cell.IsIncorrect();
        if (cell.wrongMark.blnOpaque) {
            cell.wrongMark.lngColor = game.colors.lngColorIncorrectCell;
            ++intCount;
        }
    }
    game.lblIncorrectCells = blnShow ? std::to_string(intCount) : std::string(strHiddenCount);
}

void ToggleCellErrors(Game& game) {
    CellErrorsShow(game, !game.mnuCellErrors.blnChecked);
}

void DoNumberShade(Game& game) {
    SeenDigits everywhere;
    everywhere.set();
    for (const SeenDigits& seen : GetSeenDigits(game))
        everywhere &= seen;
    for (int n = 1; n <= 9; ++n)
        game.picButton[n].blnShaded = everywhere[static_cast<std::size_t>(n)];
}

} // namespace cellora
