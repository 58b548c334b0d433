#include "rules/view.h"

#include "core/modCellora.h"
#include "rules/clock.h"
#include "rules/notes.h"
#include "rules/selector.h"

namespace cellora {

namespace {

/// The entries that make sense only with a puzzle on the board.
constexpr MenuItem View::*const aGameMenu[] = {
    &View::mnuPrint,     &View::mnuSave,           &View::mnuSaveAs,     &View::mnuNormal,
    &View::mnuFitWindow, &View::mnuNumberSelector, &View::mnuStatistics,
};

/// Those that make sense only until it is finished.
constexpr MenuItem View::*const aPlayMenu[] = {
    &View::mnuSolveCell,
    &View::mnuCellErrors,
    &View::mnuSolve,
    &View::mnuPause,
};

constexpr std::string_view strViewSolution = "View Solution";
constexpr std::string_view strViewMistakes = "View Mistakes";

struct Tick {
    MenuItem View::*item;
    bool Settings::*blnChecked;
};

constexpr Tick aTicks[] = {
    {&View::mnuToolbar, &Settings::blnToolbar},
    {&View::mnuStatusBar, &Settings::blnStatusBar},
    {&View::mnuNumberSelector, &Settings::blnNumberSelector},
    {&View::mnuStatistics, &Settings::blnStatistics},
    {&View::mnuCellErrors, &Settings::blnCellErrors},
};

// Colour helpers: they change what is drawn, never the colours the player chose.

void ApplyRegionColor(View& view, Color lngColor) {
    view.grid.lngRegionFill = lngColor;
}

void ApplyGridLineColor(View& view, Color lngColor) {
    view.grid.lngLineColor = lngColor;
    for (CellView& cell : view.grid.cells)
        cell.lngOutlineColor = lngColor;
}

void ApplyUserFontColor(View& view, Color lngColor) {
    for (CellView& cell : view.grid.cells) {
        cell.lblCell.lngForeColor = lngColor;
        cell.lblCandidate.lngForeColor = lngColor;
    }
}

void ApplyComputerFontColor(View& view, Color lngColor) {
    for (CellView& cell : view.grid.cells)
        cell.lblSolution.lngForeColor = lngColor;
}

void ShowCell(CellView& view, const Cell& cell, const Game& game) {
    view.lblSolution.strCaption = cell.strSolution;
    view.lblSolution.blnVisible = cell.blnGiven;
    view.lblCandidate.strCaption = cell.strNotes;
    view.lblCell.strCaption = cell.strEntry;
    view.lblCell.blnVisible = cell.blnEntryShown;
    view.intOutlineWidth = cell.outline.intWidth;
    if (game.phase == Phase::Paused)
        return;
    if (cell.wrongMark.blnOpaque)
        view.shpWCell = cell.wrongMark.lngColor;
    view.blnHighlighted =
        game.intHighlight != 0 && cell.GetShownText() == std::to_string(game.intHighlight);
    if (cell.outline.blnCursorColor)
        view.lngOutlineColor = game.settings.colors[lngColorGridCursor];
}

void ShowColors(View& view, const Game& game) {
    const Colors& colors = game.settings.colors;
    view.picGrid.lngBackColor = colors[lngColorGridBackground];
    view.picStatistics.lngBackColor = colors[lngColorGridBackground];
    view.picButtons.lngBackColor = colors[lngColorScreenBackground];
    view.lngBorderBackColor = colors[lngColorScreenBackground];
    ApplyRegionColor(view, colors[lngColorGridX]);
    const bool blnPaused = game.phase == Phase::Paused;
    const auto Choose = [&](Color lngColor) {
        return blnPaused ? lngColorInactiveCaptionText : lngColor;
    };
    ApplyGridLineColor(view, Choose(colors[lngColorGridLines]));
    ApplyUserFontColor(view, Choose(colors[lngColorFontUser]));
    ApplyComputerFontColor(view, Choose(colors[lngColorFontComputer]));
    view.statistics.lngFrameColor = Choose(lngColorWindowText);
    view.statistics.lngTextColor = Choose(lngColorButtonText);
}

void ShowGrid(View& view, const Game& game) {
    GridView& grid = view.grid;
    grid.blnPaused = game.phase == Phase::Paused;
    grid.intTopOutline = game.traces.intTopOutline;
    grid.intCursorCell = game.intCursorCell;
    grid.intPointer = game.traces.intPointer;
    for (int i = 1; i <= intCellCount; ++i)
        ShowCell(grid.cells[i], game.cells[i], game);
}

void ShowPanes(View& view, const Game& game) {
    const bool blnUnlocked = game.phase != Phase::Finished;
    view.picGrid.blnVisible = game.blnGameActive();
    view.picGrid.blnEnabled = blnUnlocked;
    view.picButtons.blnVisible = IsNumberRowVisible(game);
    view.picButtons.blnEnabled = blnUnlocked;
    view.picStatistics.blnVisible = game.blnGameActive() && game.settings.blnStatistics;
    view.blnToolbarVisible = game.settings.blnToolbar;
    view.blnToolbarEnabled = game.phase != Phase::Paused;
    view.blnStatusBarVisible = game.settings.blnStatusBar;
    view.blnFinishedVisible = game.cmdFinished != FinishButton::Hidden;
    view.strFinishedCaption =
        game.cmdFinished == FinishButton::ViewSolution ? strViewSolution : strViewMistakes;
}

void ShowNumberButtons(View& view, const Game& game) {
    for (int n = 1; n <= intEraser; ++n) {
        NumberButtonView& button = view.picButton[n];
        button.blnFramed = game.traces.blnFramed[n];
        button.blnShaded = n != intEraser && game.traces.blnShaded[n];
        button.blnSelected = game.intSelectedNumber == n;
    }
}

void ShowMenus(View& view, const Game& game) {
    for (const auto item : aGameMenu)
        (view.*item).blnEnabled = game.blnGameActive();
    for (const auto item : aPlayMenu)
        (view.*item).blnEnabled = game.IsInPlay();
    for (const Tick& tick : aTicks)
        (view.*tick.item).blnChecked = game.settings.*tick.blnChecked;
    view.mnuNormal.blnChecked = !game.blnFitWindow;
    view.mnuFitWindow.blnChecked = game.blnFitWindow;
    view.mnuHighlight = {.blnEnabled = CanHighlight(game), .blnChecked = IsHighlighted(game)};
}

} // namespace

View MakeView(const Game& game) {
    View view;
    ShowPanes(view, game);
    ShowColors(view, game);
    ShowGrid(view, game); // the cursor's colour goes over that of the lines
    ShowNumberButtons(view, game);
    static_cast<Statistics&>(view.statistics) = game.statistics;
    view.statistics.lblTime = GetTimeText(game);
    ShowMenus(view, game);
    view.mnuRightClick = MakeCellPopup(game);
    return view;
}

} // namespace cellora
