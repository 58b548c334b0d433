#pragma once

#include <map>
#include <random>
#include <string>

#include "store/saved_game.h"
#include "tests/soak/window_check.h"
#include "tests/support/running_program.h"

namespace cellora {

/// Plays whole games through the main window as chance has it, and checks the window after every
/// move. A difference fails the test and ends the game.
class RandomPlayer final {
public:
    RandomPlayer(RunningProgram& run, std::uint64_t lngSeed);

    /// From the New Game dialog to an end: a full grid, the computer's solution, or a game left
    /// behind.
    void PlayGame();

    int GetMoveCount() const { return intMoves_; }
    int GetCheckCount() const { return check_.GetCheckCount(); }

private:
    using Move = void (RandomPlayer::*)();
    struct WeightedMove {
        const char* strName;
        int intWeight;
        Move fnMove;
    };
    static const std::vector<WeightedMove>& GetMoves();

    void Make(const char* strName, Move fnMove);
    void MakeRandomMove();
    void Check(const char* strMove);
    void CheckPaint(const char* strMove);

    // What is done on the board.
    void TypeSolution();
    void ClickSolution();
    void TypeWrongDigit();
    void ClickAnyCell();
    void ClearCell();
    void MoveCursor();
    void EditNotes();
    void SelectNumber();
    void Highlight();
    void PassTime();
    void IdleCursor();

    // What is chosen from the menus.
    void ToggleView();
    void ChangeWindowMode();
    void Pause();
    void SolveOneCell();
    void Save();
    void SaveAs();
    void Open();
    void OpenDamaged();
    void CancelOpen();
    void LookAtWindow();
    void ChangeOptions();

    // The game's two ends and what surrounds them.
    void StartGame();
    void FillGrid();
    void FillLastCell(bool blnWrong);
    void SolvePuzzle();
    void SwitchSolutionView();
    void ExpectSaveQuestion();
    void ExpectFile(const std::string& strFile);
    void NoteSavedGame();
    void CheckOpenedGame(const std::string& strFile);
    void Enter(int intCell, int intDigit);

    int Draw(int intLow, int intHigh);
    bool Chance(int intPercent) { return Draw(1, 100) <= intPercent; }
    int DrawEmptyCell();
    int CountEmptyCells();
    bool IsInPlay();

    RunningProgram& run_;
    WindowCheck check_;
    std::mt19937_64 random_;
    std::map<std::string, SavedGame> saved_; ///< by the name of their files
    int intMoves_ = 0;
};

} // namespace cellora
