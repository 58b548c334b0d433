#include "flow/completion.h"

#include <algorithm>
#include <array>

#include "flow/hall_of_fame.h"
#include "play/check.h"

namespace cellora {

namespace {

constexpr std::array<std::string_view, 10> aLadderTitles = {
    "Good Effort!",
    "Nice try!",
    "Better Luck Next Time!",
    "Better Try Again!",
    "Could Do Better!",
    "Not Even Close!",
    "You Need More Practice",
    "That Was Awful!",
    "My Cat Could Do Better!",
    "The Worst Sudoku Player Ever!",
};

std::string GetLadderTitle(int intMistakes) {
    const auto intStep = std::min(static_cast<std::size_t>(intMistakes), aLadderTitles.size());
    return std::string(aLadderTitles[intStep - 1]);
}

std::string GetMistakesMessage(const Game& game, int intMistakes) {
    return "You have completed the 'Cellora' but you have made " + std::to_string(intMistakes) +
           (intMistakes > 1 ? " mistakes." : " mistake.") + std::string(strParagraphBreak) +
           "Your time was " + game.lblTime + ".";
}

std::string GetConsolationMessage(const Game& game) {
    return "You have correctly completed " + game.lblLevel +
           " of the 'Cellora'. Unfortunately, your time wasn't good enough to make it into the "
           "'Top Ten' best times for the level." +
           std::string(strParagraphBreak) + "Your time for " + game.lblLevel + " was " +
           game.lblTime + ". Better luck next time!";
}

void Announce(Game& game, const std::string& strTitle, const std::string& strText) {
    game.desktop.Beep();
    game.desktop.ShowMessageBox({strTitle, strText, MessageIcon::Information, MessageButtons::Ok});
}

/// Marks the mistakes without touching the player's choice to see them.
void ShowMistakes(Game& game) {
    const bool blnCellErrors = game.mnuCellErrors.blnChecked;
    CellErrorsShow(game, true);
    game.mnuCellErrors.blnChecked = blnCellErrors;
    game.cmdFinished = {.blnVisible = true, .strCaption = std::string(strViewSolution)};
}

void EndWithMistakes(Game& game, int intMistakes) {
    ShowMistakes(game);
    if (!game.blnLoadingGame)
        Announce(game, GetLadderTitle(intMistakes), GetMistakesMessage(game, intMistakes));
}

void EndFaultless(Game& game) {
    if (game.blnLoadingGame)
        return;
    if (GetRank(game) <= LevelEntries::size())
        game.desktop.ShowModal(ModalWindow::frmEnterName);
    else
        Announce(game, "Congratulations!", GetConsolationMessage(game));
}

void EndGame(Game& game) {
    if (game.blnSolvedByComputer)
        return;
    if (const int intMistakes = CountMistakes(game); intMistakes > 0)
        EndWithMistakes(game, intMistakes);
    else
        EndFaultless(game);
}

void LockBoard(Game& game) {
    game.picGrid.blnEnabled = false;
    game.picButtons.blnEnabled = false;
    for (MenuItem* const item :
         {&game.mnuCellErrors, &game.mnuSolveCell, &game.mnuSolve, &game.mnuPause})
        item->blnEnabled = false;
    game.tbrMain.blnButtonEnabled[10] = false;
}

} // namespace

void DoCellCount(Game& game) {
    int intSolved = 0;
    int intRemaining = 0;
    for (const Cell& cell : game.cells)
        if (!cell.blnGiven)
            ++(cell.strEntry.empty() ? intRemaining : intSolved);
    game.lblSolvedByYou = std::to_string(intSolved);
    game.lblCellsToSolve = std::to_string(intRemaining);
    if (intRemaining > 0)
        return;
    game.desktop.EnableTimer(Timer::tmr, false);
    EndGame(game);
    LockBoard(game);
}

std::int16_t CountMistakes(const Game& game) {
    return static_cast<std::int16_t>(
        std::ranges::count_if(game.cells, [](const Cell& cell) { return cell.IsIncorrect(); }));
}

} // namespace cellora
