#pragma once

#include <string>

#include "core/modCellora.h"
#include "tests/support/scripted_desktop.h"

namespace cellora {

/// The digit of cell 1 to 81 in the solution that every test game has.
constexpr char GetSolutionDigit(int intCell) {
    const int r = GetRow(intCell);
    return static_cast<char>('1' + (3 * (r % 3) + r / 3 + GetColumn(intCell)) % 9);
}

/// A game in play with a known solution, no clues and no entries, on a desktop that records. The
/// cells are not counted; the calls are, and they appear in the desktop's log as "count".
struct TestGame {
    TestGame() {
        game.colors = {.lngColorGridCursor = 1,
                       .lngColorGridLines = 2,
                       .lngColorFontUser = 3,
                       .lngColorFontComputer = 4,
                       .lngColorScreenBackground = 5,
                       .lngColorGridX = 6,
                       .lngColorIncorrectCell = 7};
        game.fnDoCellCount = [this](Game&) {
            ++intCounts;
            desktop.log.emplace_back("count");
        };
        game.blnGameActive = true;
        for (Pane* const pane : {&game.picGrid, &game.picBorder, &game.picButtons})
            pane->blnVisible = true;
        for (int i = 1; i <= intCellCount; ++i) {
            game.cells[i].strSolution = GetSolutionDigit(i);
            game.cells[i].outline = {1, game.colors.lngColorGridLines};
        }
    }

    TestGame(const TestGame&) = delete;
    TestGame& operator=(const TestGame&) = delete;

    void Give(int intCell) { game.cells[intCell].blnGiven = true; }

    /// Writes an entry, the solution's digit unless told otherwise, without any check.
    void Fill(int intCell, std::string strDigit = {}) {
        Cell& cell = game.cells[intCell];
        cell.strEntry = strDigit.empty() ? cell.strSolution : strDigit;
    }

    /// What the desktop was asked since the last call, one word or two per item.
    std::string TakeLog() {
        std::string strText;
        for (const std::string& strItem : desktop.log)
            strText += (strText.empty() ? "" : ", ") + strItem;
        desktop.log.clear();
        return strText;
    }

    ScriptedDesktop desktop;
    Game game{desktop};
    int intCounts = 0;
};

/// A cell in one word: "#5" given, "5" entered, "." empty; then its notes in braces, "x" while it
/// is marked wrong.
inline std::string AsText(const Cell& cell) {
    std::string strText = cell.blnGiven ? '#' + cell.strSolution : cell.strEntry;
    if (strText.empty())
        strText = ".";
    if (!cell.strNotes.empty())
        strText += '{' + cell.strNotes + '}';
    return strText + (cell.wrongMark.blnOpaque ? "x" : "");
}

/// The board, a line per row.
inline std::string AsText(const Game& game) {
    std::string strText;
    for (int i = 1; i <= intCellCount; ++i)
        strText += AsText(game.cells[i]) + (GetColumn(i) == 8 ? '\n' : ' ');
    return strText;
}

/// The outlines that differ from the thin grid line, as "CELL:WIDTH/COLOUR".
inline std::string DescribeOutlines(const Game& game) {
    std::string strText;
    for (int i = 1; i <= intCellCount; ++i) {
        const Outline& outline = game.cells[i].outline;
        if (outline != Outline{1, game.colors.lngColorGridLines})
            strText += (strText.empty() ? "" : " ") + std::to_string(i) + ':' +
                       std::to_string(outline.intWidth) + '/' + std::to_string(outline.lngColor);
    }
    return strText;
}

/// The buttons with a frame, or the shaded ones, in their order; "E" is the eraser.
inline std::string ListButtons(const Game& game, bool NumberButton::*const blnState) {
    std::string strText;
    for (int n = 1; n <= intEraser; ++n) {
        if (game.picButton[n].*blnState)
            strText += n == intEraser ? 'E' : static_cast<char>('0' + n);
    }
    return strText;
}

} // namespace cellora
