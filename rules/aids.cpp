#include "rules/aids.h"

#include <algorithm>
#include <string>

#include "core/desktop.h"
#include "core/modCellora.h"
#include "core/modCreateSudoku.h"
#include "rules/check.h"
#include "rules/clock.h"
#include "rules/completion.h"
#include "rules/cursor.h"
#include "rules/selector.h"

namespace cellora {

namespace {

constexpr std::int32_t lngPenaltySeconds = 30;

int FindEmptyCell(Game& game) {
    for (;;) {
        const int i = RandomInRange(game, 1, intCellCount);
        if (!game.cells[i].blnGiven && !game.cells[i].HasEntry())
            return i;
    }
}

bool HasEmptyCell(const Game& game) {
    return std::ranges::any_of(game.cells,
                               [](const Cell& cell) { return !cell.blnGiven && !cell.HasEntry(); });
}

void RevealCell(Game& game, int intCell) {
    Cell& cell = game.cells[intCell];
    cell.blnGiven = true;
    cell.strNotes.clear();
    MoveCursor(game, intCell);
    game.desktop.RestartTimer(Timer::tmrCellWait);
    game.statistics.AddVisibleCell();
    if (const int intDigit = cell.GetSolutionDigit(); intDigit != 0)
        DoButtonClick(game, intDigit);
}

/// A mistake shows the player's digit where mistakes are wanted; all other cells the solution.
void ShowCell(Game& game, Cell& cell, bool blnMistakes) {
    const bool blnMistake = blnMistakes && cell.IsMistaken();
    cell.blnGiven = !blnMistake;
    if (cell.HasEntry())
        cell.blnEntryShown = blnMistake;
    MarkCell(game, cell, blnMistakes);
}

void ShowFinishedBoard(Game& game, bool blnMistakes) {
    game.cmdFinished = blnMistakes ? FinishButton::ViewSolution : FinishButton::ViewMistakes;
    for (Cell& cell : game.cells)
        ShowCell(game, cell, blnMistakes);
}

} // namespace

std::int16_t RandomInRange(Game& game, std::int16_t lo, std::int16_t hi) {
    return static_cast<std::int16_t>(RandomNumber(game, lo, hi));
}

void SolveOneCell(Game& game) {
    if (!game.desktop.Confirm("Solve One Cell?",
                              "Solving a cell will incur a 30 second time penalty." +
                                  std::string(strParagraphBreak) +
                                  "Are you sure you want one of the cells solved for you?") ||
        !HasEmptyCell(game))
        return;
    game.desktop.SetMousePointer(MousePointer::Hourglass);
    RevealCell(game, FindEmptyCell(game));
    // The clock keeps its seconds a minute below the end of their range.
    game.lngSeconds += lngPenaltySeconds;
    DoTime(game);
    game.desktop.SetMousePointer(MousePointer::Default);
    DoNumberShade(game);
    DoCellCount(game);
}

void SolvePuzzle(Game& game) {
    if (!game.desktop.Confirm(
            "Solve Puzzle?",
            "Are you sure you want this puzzle solved for you?" + std::string(strParagraphBreak) +
                "If you select 'Yes', then this game will not be included in the 'Top Ten' "
                "hall of fame rankings." +
                std::string(strParagraphBreak) + "Do you this puzzle solved?"))
        return;
    game.desktop.SetMousePointer(MousePointer::Hourglass);
    for (Cell& cell : game.cells)
        if (!cell.HasEntry())
            cell.blnGiven = true;
    game.desktop.SetMousePointer(MousePointer::Default);
    game.blnSolvedByComputer = true;
    DoCellCount(game);
}

void ToggleSolutionView(Game& game) {
    ShowFinishedBoard(game, game.cmdFinished == FinishButton::ViewMistakes);
}

void ShowMistakesView(Game& game) {
    ShowFinishedBoard(game, true);
}

} // namespace cellora
