#include "rules/completion.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>

#include "core/desktop.h"
#include "core/modCellora.h"
#include "rules/check.h"
#include "rules/clock.h"
#include "rules/hall_of_fame.h"

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
           "Your time was " + GetTimeText(game) + ".";
}

std::string GetConsolationMessage(const Game& game) {
    const std::string& strLevel = game.statistics.lblLevel;
    return "You have correctly completed " + strLevel +
           " of the 'Cellora'. Unfortunately, your time wasn't good enough to make it into the "
           "'Top Ten' best times for the level." +
           std::string(strParagraphBreak) + "Your time for " + strLevel + " was " +
           GetTimeText(game) + ". Better luck next time!";
}

/// Marks the mistakes without touching the player's choice to see them.
void ShowMistakes(Game& game) {
    MarkErrors(game, true);
    game.cmdFinished = FinishButton::ViewSolution;
}

void EndWithMistakes(Game& game, int intMistakes) {
    ShowMistakes(game);
    if (!game.blnLoadingGame)
        game.desktop.Announce(GetLadderTitle(intMistakes), GetMistakesMessage(game, intMistakes),
                              MessageIcon::Information);
}

void EndFaultless(Game& game, std::int16_t intRank) {
    game.score.blnWaits = intRank <= LevelEntries::size();
    if (game.score.blnWaits)
        game.desktop.ShowModal(ModalWindow::frmEnterName);
    else
        game.desktop.Announce("Congratulations!", GetConsolationMessage(game),
                              MessageIcon::Information);
    game.score = {};
}

std::int16_t CountEqualEntries(const Game& game, const std::string& strName,
                               const LevelEntries& entries) {
    return static_cast<std::int16_t>(std::ranges::count(
        entries, HallOfFameEntry{strName, game.lngHours, game.lngMinutes, game.lngSeconds}));
}

void EndGame(Game& game) {
    if (game.blnSolvedByComputer)
        return;
    if (const int intMistakes = CountMistakes(game); intMistakes > 0)
        EndWithMistakes(game, intMistakes);
    else if (!game.blnLoadingGame)
        EndFaultless(game, GetRank(game));
}

} // namespace

void DoCellCount(Game& game) {
    int intSolved = 0;
    int intRemaining = 0;
    for (const Cell& cell : game.cells)
        if (!cell.blnGiven)
            ++(cell.strEntry.empty() ? intRemaining : intSolved);
    game.statistics.lblSolvedByYou = std::to_string(intSolved);
    game.statistics.lblCellsToSolve = std::to_string(intRemaining);
    if (intRemaining > 0)
        return;
    game.desktop.EnableTimer(Timer::tmr, false);
    EndGame(game);
    game.phase = Phase::Finished;
}

void NoteName(Game& game, const std::string& strName) {
    LevelEntries entries;
    const bool blnRead = !ReadHallOfFame(game, GetCurrentLevel(game), entries);
    // Better asked for a name twice than taken for somebody who has the same time already.
    game.score.strName = blnRead ? strName : std::string();
    game.score.intEqual = CountEqualEntries(game, strName, entries);
}

void EndWaitingGame(Game& game, const LevelEntries& entries) {
    const WaitingScore& score = game.score;
    const bool blnTaken =
        !score.strName.empty() && CountEqualEntries(game, score.strName, entries) > score.intEqual;
    if (game.phase == Phase::Finished && CountMistakes(game) == 0 && !blnTaken)
        EndFaultless(game, GetRank(game, entries));
    game.score = {};
}

std::int16_t CountMistakes(const Game& game) {
    return static_cast<std::int16_t>(
        std::ranges::count_if(game.cells, [](const Cell& cell) { return cell.IsIncorrect(); }));
}

} // namespace cellora
