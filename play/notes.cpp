#include "play/notes.h"

#include <string>
#include <utility>

#include "core/text.h"

namespace cellora {

namespace {

/// Five notes of two characters each.
constexpr std::size_t intFullLength = 10;

constexpr std::string_view strRemove = "Remove";

bool IsRemoval(const PopupItem& item) {
    return std::string_view(item.strCaption).ends_with(strRemove);
}

std::string GetRemovalCaption(int intDigit) {
    return std::to_string(intDigit) + " - " + std::string(strRemove);
}

void ResetNumberedEntries(Game& game) {
    for (int intDigit = 1; intDigit <= 9; ++intDigit)
        game.mnuC[intDigit] = {.strCaption = std::to_string(intDigit), .blnVisible = true};
}

void OfferRemovals(Game& game, std::string_view strNotes) {
    for (const char character : strNotes.substr(0, intFullLength))
        if (const int intDigit = GetDigitValue(character); intDigit != 0)
            game.mnuC[intDigit].strCaption = GetRemovalCaption(intDigit);
}

void HideAdditions(Game& game) {
    for (PopupItem& item : game.mnuC)
        item.blnVisible = IsRemoval(item);
}

/// The quick entry never offers what its numbered entry does not.
void FollowNumberedEntries(Game& game) {
    for (int intDigit = 1; intDigit <= 9; ++intDigit) {
        game.mnuA[intDigit].strCaption = game.mnuC[intDigit].strCaption;
        game.mnuA[intDigit].blnVisible =
            intDigit == game.intSelectedNumber && game.mnuC[intDigit].blnVisible;
    }
    game.mnuAsepVisible = game.intSelectedNumber >= 1 && game.intSelectedNumber <= 9;
}

void SetNotes(Game& game, std::string strNotes) {
    game.cells[game.intCursorCell].strNotes = std::move(strNotes);
    RestartTimer(game.desktop, Timer::tmrCellWait);
}

void EditNote(Game& game, const PopupItem& item, int intDigit) {
    if (IsRemoval(item))
        CandidateRemove(game, intDigit);
    else
        CandidateAdd(game, intDigit);
}

} // namespace

void ShowCellPopup(Game& game) {
    const Cell& cell = game.cells[game.intCursorCell];
    ResetNumberedEntries(game);
    if (cell.blnGiven)
        return;
    game.mnuRemoveAllEnabled = !cell.strNotes.empty();
    OfferRemovals(game, cell.strNotes);
    if (cell.strNotes.size() >= intFullLength)
        HideAdditions(game);
    FollowNumberedEntries(game);
    game.desktop.EnableTimer(Timer::tmrCellWait, false);
    game.desktop.ShowPopup(PopupMenu::mnuRightClick);
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

void mnuA_Click(Game& game, int intDigit) {
    EditNote(game, game.mnuA[intDigit], intDigit);
}

void mnuC_Click(Game& game, int intDigit) {
    EditNote(game, game.mnuC[intDigit], intDigit);
}

void mnuRemoveAll_Click(Game& game) {
    SetNotes(game, {});
}

} // namespace cellora
