#pragma once

#include <cstdint>
#include <string>

#include "core/cell.h"
#include "core/numbered.h"
#include "core/settings.h"
#include "core/statistics.h"

/// The program-wide state and the operations on the whole board. `Program` makes one `Game`; every
/// routine takes it by reference. What the window shows is worked out of it (rules/view.h).
namespace cellora {

class Desktop;
class FilePort;

enum class Phase {
    None, ///< no puzzle is on the board yet
    Playing,
    Paused,
    Finished, ///< the grid is full and locked
};

/// What the finish button's next click shows; it is there after a game that ended with mistakes.
enum class FinishButton { Hidden, ViewSolution, ViewMistakes };

/// How far the order of events, which the rest of the state does not tell, shows on the screen.
struct Traces {
    int intTopOutline = 0;               ///< the outline brought to the front last, 0 for none
    int intPointer = 0;                  ///< over the grid: the number selected last, 0 before
    Numbered<bool, intEraser> blnFramed; ///< the number buttons that carry a frame
    Numbered<bool, 9> blnShaded;         ///< the digits seen in all regions at the last check
};

/// The place among the best times that a finished game has earned and that is neither taken nor
/// given up yet.
struct WaitingScore {
    bool blnWaits = false;
    std::string strName;       ///< as it is about to be entered, else empty
    std::int16_t intEqual = 0; ///< entries of that name and time that were there before

    bool operator==(const WaitingScore&) const = default;
};

struct Game {
    Game(Desktop& desktopOfProgram, FilePort& filesOfProgram)
        : desktop(desktopOfProgram), files(filesOfProgram) {}

    bool blnGameActive() const { return phase != Phase::None; }

    /// A puzzle is on the board and not finished; a paused game is in play.
    bool IsInPlay() const { return phase == Phase::Playing || phase == Phase::Paused; }

    Desktop& desktop;
    FilePort& files;

    // Chosen before play: where the program's files live, where random numbers begin, and what the
    // settings file holds.
    std::string strProgramFolder;
    std::uint64_t lngRandomState = 0;
    Settings settings;

    // The position.
    Phase phase = Phase::None;
    Numbered<Cell, intCellCount> cells;
    std::int32_t lngHours = 0;
    std::int32_t lngMinutes = 0;
    std::int32_t lngSeconds = 0;
    Statistics statistics;
    FinishButton cmdFinished = FinishButton::Hidden;

    // The session.
    bool blnGameChanged = false;
    bool blnSolvedByComputer = false;
    bool blnLoadingGame = false; ///< an opened game is being checked; its end needs no messages
    bool blnFitWindow = false;   ///< the window is kept as small as the grid allows
    std::string strGameFile;     ///< empty until the game is saved or opened
    int intGames = 0;            ///< how many games were put on the board
    bool blnSaveOwed = false;    ///< changes that the player did not give up could not be saved
    WaitingScore score;
    std::int16_t intCursorCell = intCenterCell;
    std::int16_t intPrevCursorCell = intCenterCell;
    std::int16_t intSelectedNumber = 1;
    std::int16_t intLastSelectedNumber = 0;
    std::int16_t intHighlight = 0; ///< the digit highlighted on the board, 0 for none
    Traces traces;
};

/// Empties every cell, shows its entry, draws its outline thin in the grid-line colour and ends any
/// highlight. Given cells and wrong marks stay.
void ResetGrid(Game& game);

/// Empties the notes of every cell and brings the entries before the outlines.
void ResetCandidate(Game& game);

/// Readies the game's commands for a game that was put on the board: hides the finish button and
/// takes back "solved by computer"; counts it.
void DoEnable(Game& game);

} // namespace cellora
