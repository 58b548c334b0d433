#pragma once

#include <set>
#include <string>
#include <utility>
#include <vector>

#include "core/modCellora.h"
#include "rules/view.h"
#include "tests/support/golden.h"

namespace cellora {

/// The names of what is true.
inline std::string ListTrue(const std::vector<std::pair<const char*, bool>>& items) {
    std::string strText;
    for (const auto& [strName, blnTrue] : items)
        strText += blnTrue ? std::string(" ") + strName : "";
    return strText;
}

/// One cell: its solution with "!" where it is shown and ":" where not, the player's digit (in
/// parentheses while hidden), notes in braces, "x" and the colours of the wrong mark, "*" while
/// highlighted.
inline std::string Describe(const CellView& cell) {
    const auto& [strEntry, lngColor, blnVisible] = cell.lblCell;
    const std::string& strNotes = cell.lblCandidate.strCaption;
    return Text(cell.lblSolution.strCaption, cell.lblSolution.blnVisible ? '!' : ':',
                blnVisible ? strEntry : '(' + strEntry + ')',
                strNotes.empty() ? "" : '{' + strNotes + '}',
                cell.shpWCell ? Text('x', *cell.shpWCell, '/', cell.lngMarkColor) : "",
                cell.shpHighlight ? "*" : "");
}

inline std::string Describe(const Numbered<PopupItem, 9>& items) {
    std::string strText;
    for (const PopupItem& item : items)
        strText += item.blnVisible ? item.strCaption + '|' : "";
    return strText;
}

/// Everything that the window shows, in as many lines for every view.
inline std::vector<std::string> Describe(const View& view) {
    constexpr const char* aNames[] = {
        "mnuPrint",          "mnuSave",      "mnuSaveAs",     "mnuNormal",    "mnuFitWindow",
        "mnuToolbar",        "mnuStatusBar", "mnuStatistics", "mnuSolveCell", "mnuCellErrors",
        "mnuNumberSelector", "mnuSolve",     "mnuPause",      "mnuHighlight",
    };
    std::vector<std::pair<const char*, bool>> disabled = {
        {"picGrid", !view.picGrid.blnEnabled},
        {"picButtons", !view.picButtons.blnEnabled},
        {"toolbar", !view.blnToolbarEnabled}};
    std::vector<std::pair<const char*, bool>> ticked;
    for (const char* const* pName = aNames;
         const MenuItem& item :
         {view.mnuPrint, view.mnuSave, view.mnuSaveAs, view.mnuNormal, view.mnuFitWindow,
          view.mnuToolbar, view.mnuStatusBar, view.mnuStatistics, view.mnuSolveCell,
          view.mnuCellErrors, view.mnuNumberSelector, view.mnuSolve, view.mnuPause,
          view.mnuHighlight}) {
        disabled.emplace_back(*pName, !item.blnEnabled);
        ticked.emplace_back(*pName++, item.blnChecked);
    }
    const GridView& grid = view.grid;
    const StatisticsView& statistics = view.statistics;
    std::vector<std::string> lines = {
        "shown:" + ListTrue({{"picGrid", view.picGrid.blnVisible},
                             {"picButtons", view.picButtons.blnVisible},
                             {"picStatistics", view.picStatistics.blnVisible},
                             {"toolbar", view.blnToolbarVisible},
                             {"statusbar", view.blnStatusBarVisible},
                             {"cmdFinished", view.blnFinishedVisible},
                             {"paused", grid.blnPaused}}),
        "disabled:" + ListTrue(disabled), "ticked:" + ListTrue(ticked),
        "cmdFinished: " + view.strFinishedCaption,
        Text("statistics: ", statistics.lblTime, " | ", statistics.lblLevel, " | ",
             statistics.lblVisibleCells, " given | ", statistics.lblSolvedByYou, " by you | ",
             statistics.lblCellsToSolve, " to solve | ", statistics.lblIncorrectCells, " wrong")};
    std::set<std::string> colors;
    std::string strOutlines;
    int intTakingClicks = 0;
    for (int i = 1; i <= intCellCount; ++i) {
        const CellView& cell = grid.cells[i];
        if (i % 9 == 1)
            lines.push_back(Text("row ", i / 9 + 1, ':'));
        lines.back() += ' ' + Describe(cell);
        intTakingClicks += cell.blnTakesClick ? 1 : 0;
        colors.insert(Text("; ", cell.lblSolution.lngForeColor, " given, ",
                           cell.lblCell.lngForeColor, " entered, ", cell.lblCandidate.lngForeColor,
                           " noted",
                           grid.blnPaused ? Text(", ", cell.lngOutlineColor, " outlined") : ""));
        if (cell.intOutlineWidth != 1 ||
            (!grid.blnPaused && cell.lngOutlineColor != grid.lngLineColor))
            strOutlines += Text(' ', i, '/', cell.intOutlineWidth, '/', cell.lngOutlineColor);
    }
    lines.push_back(Text("outlines:", strOutlines, ", top ", grid.intTopOutline, ", cursor ",
                         grid.intCursorCell, ", pointer ", grid.intPointer));
    lines.push_back(Text("colours: ", view.picGrid.lngBackColor, ' ', view.picButtons.lngBackColor,
                         ' ', view.picStatistics.lngBackColor, ' ', view.lngBorderBackColor, ' ',
                         grid.lngRegionFill, ' ', grid.lngLineColor, ' ', statistics.lngFrameColor,
                         ' ', statistics.lngTextColor, ' ', view.picButton[1].lngFrameColor));
    for (const std::string& strColor : colors)
        lines.back() += strColor;
    lines.push_back(Text("cells that take a click: ", intTakingClicks));
    lines.emplace_back("buttons:");
    for (int n = 1; n <= intEraser; ++n) {
        const NumberButtonView& button = view.picButton[n];
        lines.back() += Text(' ', n, button.blnFramed ? "[]" : "", button.blnShaded ? "#" : "",
                             button.blnSelected ? "<" : "");
    }
    const CellPopupView& popup = view.mnuRightClick;
    lines.push_back(Text("popup: ", Describe(popup.mnuA), popup.mnuAsep ? "--|" : "",
                         Describe(popup.mnuC),
                         popup.mnuRemoveAllEnabled ? "Remove All" : "(Remove All)"));
    return lines;
}

} // namespace cellora
