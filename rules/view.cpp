#include "rules/view.h"

#include "core/modCellora.h"
#include "rules/clock.h"
#include "rules/contrast.h"
#include "rules/entry.h"
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

void SetCellColors(CellView& cell, Color lngUser, Color lngComputer, Color lngLine) {
    cell.lblCell.lngForeColor = lngUser;
    cell.lblCandidate.lngForeColor = lngUser;
    cell.lblSolution.lngForeColor = lngComputer;
    cell.lngOutlineColor = lngLine;
}

RingView MakeRing(const Colors& colors, const Cell& cell, int intCell) {
    constexpr Color lngAmber = MakeColor(255, 165, 0);
    const Color lngBehind = cell.wrongMark.blnOpaque             ? cell.wrongMark.lngColor
                            : IsFilledRegion(GetRegion(intCell)) ? colors[lngColorGridX]
                                                                 : colors[lngColorGridBackground];
    const Color lngDigit = colors[cell.blnGiven ? lngColorFontComputer : lngColorFontUser];
    return {.lngLineColor = MakeSeen(lngAmber, lngBehind),
            .lngFillColor = Tint(lngAmber, lngBehind, lngDigit)};
}

void ShowCell(CellView& view, const Game& game, int intCell) {
    const Cell& cell = game.cells[intCell];
    view.lblSolution.strCaption = cell.strSolution;
    view.lblSolution.blnVisible = cell.blnGiven;
    view.lblCandidate.strCaption = cell.strNotes;
    view.lblCell.strCaption = cell.strEntry;
    view.lblCell.blnVisible = cell.blnEntryShown;
    view.intOutlineWidth = cell.outline.intWidth;
    if (game.phase == Phase::Paused)
        return;
    view.blnTakesClick = game.IsInPlay() && TakesClick(game, intCell);
    if (cell.wrongMark.blnOpaque) {
        view.shpWCell = cell.wrongMark.lngColor;
        view.lngMarkColor = ChooseInk(cell.wrongMark.lngColor);
    }
    if (game.intHighlight != 0 && cell.GetShownText() == std::to_string(game.intHighlight))
        view.shpHighlight = MakeRing(game.settings.colors, cell, intCell);
    if (cell.outline.blnCursorColor)
        view.lngOutlineColor = game.settings.colors[lngColorGridCursor];
}

void ShowBackColors(View& view, const Colors& colors) {
    view.picGrid.lngBackColor = colors[lngColorGridBackground];
    view.picStatistics.lngBackColor = colors[lngColorGridBackground];
    view.picButtons.lngBackColor = colors[lngColorScreenBackground];
    view.lngBorderBackColor = colors[lngColorScreenBackground];
    view.grid.lngRegionFill = colors[lngColorGridX];
}

void ShowColors(View& view, const Colors& colors) {
    const Color lngInk = ChooseInk(colors[lngColorGridBackground]);
    view.statistics.lngFrameColor = lngInk;
    view.statistics.lngTextColor = lngInk;
    view.grid.lngLineColor = colors[lngColorGridLines];
    for (CellView& cell : view.grid.cells)
        SetCellColors(cell, colors[lngColorFontUser], colors[lngColorFontComputer],
                      colors[lngColorGridLines]);
}

/// A paused board cannot be studied: everything on it takes a colour close to what lies behind it.
void ConcealColors(View& view, const Colors& colors) {
    const Color lngConcealed = Conceal(colors[lngColorGridBackground]);
    view.statistics.lngFrameColor = lngConcealed;
    view.statistics.lngTextColor = lngConcealed;
    view.grid.lngLineColor = lngConcealed;
    const Color lngOnX = Conceal(colors[lngColorGridX]);
    for (int i = 1; i <= intCellCount; ++i) {
        const Color lngColor = IsFilledRegion(GetRegion(i)) ? lngOnX : lngConcealed;
        SetCellColors(view.grid.cells[i], lngColor, lngColor, lngColor);
    }
}

void ShowGrid(View& view, const Game& game) {
    GridView& grid = view.grid;
    grid.blnPaused = game.phase == Phase::Paused;
    grid.intTopOutline = game.traces.intTopOutline;
    grid.intCursorCell = game.intCursorCell;
    grid.intPointer = game.traces.intPointer;
    for (int i = 1; i <= intCellCount; ++i)
        ShowCell(grid.cells[i], game, i);
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
    const Color lngFrameColor = ChooseInk(game.settings.colors[lngColorScreenBackground]);
    for (int n = 1; n <= intEraser; ++n) {
        NumberButtonView& button = view.picButton[n];
        button.blnFramed = game.traces.blnFramed[n];
        button.blnShaded = n != intEraser && game.traces.blnShaded[n];
        button.blnSelected = game.intSelectedNumber == n;
        button.lngFrameColor = lngFrameColor;
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
    const Colors& colors = game.settings.colors;
    ShowBackColors(view, colors);
    game.phase == Phase::Paused ? ConcealColors(view, colors) : ShowColors(view, colors);
    ShowGrid(view, game); // the cursor's colour goes over that of the lines
    ShowNumberButtons(view, game);
    static_cast<Statistics&>(view.statistics) = game.statistics;
    view.statistics.lblTime = GetTimeText(game);
    ShowMenus(view, game);
    view.mnuRightClick = MakeCellPopup(game);
    return view;
}

} // namespace cellora
