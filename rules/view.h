#pragma once

#include <optional>
#include <string>

#include "core/modCommon_Constants.h"
#include "core/numbered.h"
#include "core/statistics.h"

/// What the main window shows. It is worked out of the state alone; the window copies it into its
/// elements, whose names the members carry.
namespace cellora {

struct Game;

struct LabelView {
    std::string strCaption;
    Color lngForeColor = lngColorBlack;
    bool blnVisible = true;

    bool operator==(const LabelView&) const = default;
};

/// `shpHighlight`, the ring round the digit of a highlighted cell.
struct RingView {
    Color lngLineColor = lngColorBlack; ///< seen on the cell
    Color lngFillColor = lngColorWhite; ///< the digit reads on it

    bool operator==(const RingView&) const = default;
};

/// The elements of one cell.
struct CellView {
    LabelView lblSolution; ///< visible in a given cell
    LabelView lblCandidate;
    LabelView lblCell;
    std::optional<Color> shpWCell;      ///< the fill of a cell that is marked wrong
    Color lngMarkColor = lngColorBlack; ///< of the mark in the corner of such a cell
    int intOutlineWidth = 1;            ///< of `shpCell`, in pixels of 15 twips
    Color lngOutlineColor = lngColorBlack;
    std::optional<RingView> shpHighlight;
    bool blnTakesClick = false; ///< a left click would write here

    bool operator==(const CellView&) const = default;
};

/// Regions 0, 2, 4, 6 and 8 form an X.
constexpr bool IsFilledRegion(int intRegion) {
    return intRegion % 2 == 0;
}

struct GridView {
    bool blnPaused = false;              ///< nothing of the game may be read, by eye or by ear
    Color lngRegionFill = lngColorWhite; ///< of the regions that form an X
    Color lngLineColor = lngColorBlack;  ///< of the regions and the border
    Numbered<CellView, intCellCount> cells;
    int intTopOutline = 0; ///< the cell whose outline lies in front of the digits, 0 for none
    int intCursorCell = intCenterCell;
    int intPointer = 0; ///< 0 plain, 1 to 9 a digit, 10 the eraser
};

struct PaneView {
    bool blnVisible = false;
    bool blnEnabled = true;
    Color lngBackColor = lngColorWhite;
};

/// A button of the number selector.
struct NumberButtonView {
    bool blnFramed = false;
    bool blnShaded = false; ///< the digit is complete; never set for the eraser
    bool blnSelected = false;
    Color lngFrameColor = lngColorBlack; ///< seen on the row's background
};

struct StatisticsView : Statistics {
    Color lngFrameColor = lngColorWindowText; ///< these two are read on the pane's background
    Color lngTextColor = lngColorButtonText;
    std::string lblTime; ///< hh:mm:ss
};

struct MenuItem {
    bool blnEnabled = true;
    bool blnChecked = false;
};

struct PopupItem {
    std::string strCaption;
    bool blnVisible = false;
};

/// `mnuRightClick`, the popup of the cursor cell's notes, top to bottom.
struct CellPopupView {
    Numbered<PopupItem, 9> mnuA;
    bool mnuAsep = false;
    Numbered<PopupItem, 9> mnuC;
    bool mnuRemoveAllEnabled = false;
};

struct View {
    PaneView picGrid;
    PaneView picButtons;
    PaneView picStatistics;
    Color lngBorderBackColor = lngColorWhite; ///< of `picBorder`
    bool blnToolbarVisible = true;
    bool blnToolbarEnabled = true; ///< else no button works, whatever its command
    bool blnStatusBarVisible = true;
    bool blnFinishedVisible = false; ///< `cmdFinished`
    std::string strFinishedCaption;

    GridView grid;
    Numbered<NumberButtonView, intEraser> picButton;
    StatisticsView statistics;

    MenuItem mnuPrint;
    MenuItem mnuSave;
    MenuItem mnuSaveAs;
    MenuItem mnuNormal;
    MenuItem mnuFitWindow;
    MenuItem mnuToolbar;
    MenuItem mnuStatusBar;
    MenuItem mnuNumberSelector;
    MenuItem mnuStatistics;
    MenuItem mnuSolveCell;
    MenuItem mnuCellErrors;
    MenuItem mnuSolve;
    MenuItem mnuPause;

    CellPopupView mnuRightClick;
    MenuItem mnuHighlight; ///< of the popup of a number button
};

View MakeView(const Game& game);

} // namespace cellora
