#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "core/cell.h"
#include "core/desktop.h"
#include "core/numbered.h"

/// The program-wide state and the operations on the whole board. `main` makes one `Game`; every
/// routine takes it by reference, and the main window mirrors it after each event.
namespace cellora {

/// A pane of the main window.
struct Pane {
    bool blnVisible = false;
    bool blnEnabled = true;
    Color lngBackColor = lngColorWhite;
};

/// A menu entry whose state the rules read or set.
struct MenuItem {
    bool blnEnabled = false;
    bool blnChecked = false;
};

/// A button of the number selector.
struct NumberButton {
    bool blnFramed = false;
    bool blnShaded = false; ///< the digit can be seen in all nine regions; never set for the eraser
};

/// An entry of the cell popup.
struct PopupItem {
    std::string strCaption;
    bool blnVisible = false;
};

/// The main window's toolbar: eleven places, separators among them.
struct Toolbar {
    Toolbar() { blnButtonEnabled.fill(true); }

    bool blnVisible = true;
    Numbered<bool, 11> blnButtonEnabled;
};

/// The button that switches a finished board between solution and mistakes.
struct FinishButton {
    bool blnVisible = false;
    std::string strCaption{strViewSolution};
};

/// What the player chose or the settings file holds.
struct ColorSettings {
    Color lngColorGridCursor = lngColorBlack;
    Color lngColorGridLines = lngColorBlack;
    Color lngColorFontUser = lngColorBlack;
    Color lngColorFontComputer = lngColorBlack;
    Color lngColorScreenBackground = lngColorWhite;
    Color lngColorGridX = lngColorWhite;
    Color lngColorIncorrectCell = lngColorWhite;
};

/// What is drawn now: it differs from the settings while the game is paused.
struct BoardColors {
    Color lngRegionFill = lngColorWhite;
    Color lngRegionLine = lngColorBlack;
    Color lngUserText = lngColorBlack;
    Color lngComputerText = lngColorBlack;
    Color lngStatisticsFrame = lngColorWindowText;
    Color lngStatisticsText = lngColorButtonText;
};

struct Game {
    explicit Game(Desktop& desktopOfProgram) : desktop(desktopOfProgram) {}

    Desktop& desktop;

    // Chosen before play: where the program's files live and where random numbers begin.
    std::string strProgramFolder;
    std::uint64_t lngRandomState = 0;

    /// Recounts the cells and ends the game when none is empty. It belongs to a higher floor, so it
    /// is set where the program is put together, and it is the only hook there is.
    std::function<void(Game&)> fnDoCellCount;

    // The position.
    Numbered<Cell, intCellCount> cells;
    std::int32_t lngHours = 0;
    std::int32_t lngMinutes = 0;
    std::int32_t lngSeconds = 0;
    std::string lblTime = "00:00:00";
    std::string lblLevel;
    std::string lblVisibleCells = "0";
    std::string lblSolvedByYou = "0";
    std::string lblCellsToSolve = "0";
    std::string lblIncorrectCells{strHiddenCount};

    // The session.
    bool blnGameChanged = false;
    bool blnGameActive = false;
    bool blnSolvedByComputer = false;
    bool blnLoadingGame = false;
    bool blnPaused = false;
    std::string strGameFolder;
    std::string strGameFile;
    std::int16_t intCursorCell = intCenterCell;
    std::int16_t intPrevCursorCell = intCenterCell;
    std::int16_t intSelectedNumber = 1;
    std::int16_t intLastSelectedNumber = 0;
    std::int16_t intCursorOption = 0;
    std::int16_t intHighlight = 0; ///< the digit highlighted on the board, 0 for none
    ColorSettings colors;

    // On screen only.
    BoardColors boardColors;
    int intTopOutline = 0; ///< the cell whose outline was brought to the front last, 0 for none
    int intPointer = 0;    ///< the pointer over the grid: 0 plain, 1 to 9 a digit, 10 the eraser
    Pane picGrid;
    Pane picButtons;
    Pane picStatistics;
    Pane picBorder;
    bool blnStatusBarVisible = true;
    Toolbar tbrMain;
    FinishButton cmdFinished;
    Numbered<NumberButton, intEraser> picButton;

    MenuItem mnuPrint;
    MenuItem mnuSave;
    MenuItem mnuSaveAs;
    MenuItem mnuNormal{.blnChecked = true};
    MenuItem mnuFitWindow;
    MenuItem mnuToolbar{.blnEnabled = true, .blnChecked = true};
    MenuItem mnuStatusBar{.blnEnabled = true, .blnChecked = true};
    MenuItem mnuNumberSelector{.blnChecked = true};
    MenuItem mnuStatistics{.blnChecked = true};
    MenuItem mnuSolveCell;
    MenuItem mnuCellErrors{.blnChecked = true};
    MenuItem mnuSolve;
    MenuItem mnuPause;

    // The cell popup, top to bottom.
    Numbered<PopupItem, 9> mnuA;
    bool mnuAsepVisible = false;
    Numbered<PopupItem, 9> mnuC;
    bool mnuRemoveAllEnabled = false;
};

/// Empties every cell, shows its entry, draws its outline thin in the grid-line colour and ends any
/// highlight. Given cells and wrong marks stay.
void ResetGrid(Game& game);

/// Empties the notes of every cell.
void ResetCandidate(Game& game);

/// Makes the game commands follow `blnGameActive`, hides the finish button and takes back
/// "solved by computer".
void DoEnable(Game& game);

/// Colour helpers: they change what is drawn, never the colours the player chose.
void ApplyRegionColor(Game& game, Color lngColor);
void ApplyGridLineColor(Game& game, Color lngColor);
void ApplyUserFontColor(Game& game, Color lngColor);
void ApplyComputerFontColor(Game& game, Color lngColor);

} // namespace cellora
