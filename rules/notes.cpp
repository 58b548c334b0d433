#include "rules/notes.h"

#include <algorithm>
#include <string>
#include <utility>

#include "core/desktop.h"
#include "core/modCellora.h"
#include "core/text.h"
#include "rules/view.h"

namespace cellora {

namespace {

/// Five notes of two characters each.
constexpr std::size_t intFullLength = 10;

/// Whether the popup offers to remove the digit: notes behind the fifth are not looked at.
bool IsNoted(const Cell& cell, int intDigit) {
    const std::string_view strNotes = std::string_view(cell.strNotes).substr(0, intFullLength);
    return std::ranges::any_of(strNotes, [&](char c) { return GetDigitValue(c) == intDigit; });
}

PopupItem MakeItem(const Cell& cell, int intDigit) {
    if (IsNoted(cell, intDigit))
        return {.strCaption = std::to_string(intDigit) + " - Remove", .blnVisible = true};
    return {.strCaption = std::to_string(intDigit),
            .blnVisible = cell.strNotes.size() < intFullLength};
}

void SetNotes(Game& game, std::string strNotes) {
    game.cells[game.intCursorCell].strNotes = std::move(strNotes);
    game.desktop.RestartTimer(Timer::tmrCellWait);
}

} // namespace

void ShowCellPopup(Game& game) {
    if (game.cells[game.intCursorCell].blnGiven)
        return;
    game.desktop.EnableTimer(Timer::tmrCellWait, false);
    game.desktop.ShowPopup(PopupMenu::mnuRightClick);
}

CellPopupView MakeCellPopup(const Game& game) {
    const Cell& cell = game.cells[game.intCursorCell];
    CellPopupView popup;
    for (int intDigit = 1; intDigit <= 9; ++intDigit) {
        popup.mnuC[intDigit] = MakeItem(cell, intDigit);
        if (intDigit == game.intSelectedNumber) {
            popup.mnuA[intDigit] = popup.mnuC[intDigit];
            popup.mnuAsep = true;
        }
    }
    popup.mnuRemoveAllEnabled = !cell.strNotes.empty();
    return popup;
}

void CandidateAdd(Game& game, int intDigit) {
    SetNotes(game, game.cells[game.intCursorCell].strNotes + std::to_string(intDigit) + ' ');
}

void CandidateRemove(Game& game, int intDigit) {
    const std::string& strOld = game.cells[game.intCursorCell].strNotes;
    std::string strNotes;
    for (std::size_t n = 0; n < strOld.size(); ++n)
        if (GetDigitValue(strOld[n]) == intDigit)
            ++n; // its blank goes with it
        else
            strNotes += strOld[n];
    if (Trim(strNotes).empty())
        strNotes.clear();
    SetNotes(game, std::move(strNotes));
}

void mnuC_Click(Game& game, int intDigit) {
    if (IsNoted(game.cells[game.intCursorCell], intDigit))
        CandidateRemove(game, intDigit);
    else
        CandidateAdd(game, intDigit);
}

void mnuRemoveAll_Click(Game& game) {
    SetNotes(game, {});
}

} // namespace cellora
