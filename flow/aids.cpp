#include "flow/aids.h"

#include <algorithm>
#include <limits>
#include <string>

#include "core/levels.h"
#include "core/modCreateSudoku.h"
#include "core/text.h"
#include "flow/clock.h"
#include "flow/completion.h"
#include "play/check.h"
#include "play/entry.h"
#include "play/selector.h"

namespace cellora {

namespace {

constexpr std::int32_t lngPenaltySeconds = 30;

bool Confirm(Game& game, const std::string& strTitle, const std::string& strText) {
    game.desktop.Beep();
    return game.desktop.ShowMessageBox(
               {strTitle, strText, MessageIcon::Question, MessageButtons::YesNo}) == Answer::Yes;
}

bool HasEntry(const Cell& cell) {
    return !Trim(cell.strEntry).empty();
}

int FindEmptyCell(Game& game) {
    for (;;) {
        const int i = RandomInRange(game, 1, intCellCount);
        if (!game.cells[i].blnGiven && !HasEntry(game.cells[i]))
            return i;
    }
}

bool HasEmptyCell(const Game& game) {
    return std::ranges::any_of(game.cells,
                               [](const Cell& cell) { return !cell.blnGiven && !HasEntry(cell); });
}

void RevealCell(Game& game, int intCell) {
    Cell& cell = game.cells[intCell];
    cell.blnGiven = true;
    cell.strNotes.clear();
    CellClick(game, intCell, MouseButton::None);
    game.lblVisibleCells = std::to_string(std::int64_t{GetLeadingNumber(game.lblVisibleCells)} + 1);
    const std::string_view strDigit = Trim(cell.strSolution);
    if (const int intDigit = strDigit.empty() ? 0 : GetDigitValue(strDigit.front()); intDigit != 0)
        DoButtonClick(game, intDigit);
}

void AddPenalty(Game& game) {
    // Opened files may hold counters near the end of their range.
    if (game.lngSeconds <= std::numeric_limits<std::int32_t>::max() - lngPenaltySeconds)
        game.lngSeconds += lngPenaltySeconds;
    DoTime(game);
}

void ShowSolutionView(Cell& cell) {
    cell.blnGiven = true;
    if (HasEntry(cell))
        cell.blnEntryShown = false;
}

void ShowMistakesView(Cell& cell) {
    cell.blnGiven = true;
    if (HasEntry(cell) && Trim(cell.strEntry) != Trim(cell.strSolution)) {
        cell.blnEntryShown = true;
        cell.blnGiven = false;
    }
}

} // namespace

std::int16_t RandomInRange(Game& game, std::int16_t lo, std::int16_t hi) {
    return static_cast<std::int16_t>(RandomNumber(game, lo, hi));
}

void SolveOneCell(Game& game) {
    if (!Confirm(game, "Solve One Cell?",
                 "Solving a cell will incur a 30 second time penalty." +
                     std::string(strParagraphBreak) +
                     "Are you sure you want one of the cells solved for you?") ||
        !HasEmptyCell(game))
        return;
    game.desktop.SetMousePointer(MousePointer::Hourglass);
    RevealCell(game, FindEmptyCell(game));
    AddPenalty(game);
    game.desktop.SetMousePointer(MousePointer::Default);
    DoNumberShade(game);
    DoCellCount(game);
}

void SolvePuzzle(Game& game) {
    if (!Confirm(game, "Solve Puzzle?",
                 "Are you sure you want this puzzle solved for you?" +
                     std::string(strParagraphBreak) +
                     "If you select 'Yes', then this game will not be included in the 'Top Ten' "
                     "hall of fame rankings." +
                     std::string(strParagraphBreak) + "Do you this puzzle solved?"))
        return;
    game.desktop.SetMousePointer(MousePointer::Hourglass);
    for (Cell& cell : game.cells)
        if (!HasEntry(cell))
            cell.blnGiven = true;
    game.desktop.SetMousePointer(MousePointer::Default);
    game.blnSolvedByComputer = true;
    DoCellCount(game);
}

void ToggleSolutionView(Game& game) {
    const bool blnSolution = game.cmdFinished.strCaption == strViewSolution;
    game.cmdFinished.strCaption = blnSolution ? strViewMistakes : strViewSolution;
    for (Cell& cell : game.cells) {
        if (blnSolution)
            ShowSolutionView(cell);
        else
            ShowMistakesView(cell);
        cell.wrongMark.blnOpaque = !blnSolution && cell.IsIncorrect();
        if (cell.wrongMark.blnOpaque)
            cell.wrongMark.lngColor = game.colors.lngColorIncorrectCell;
    }
}

} // namespace cellora
