#pragma once

#include <algorithm>
#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "core/levels.h"
#include "flow/clock.h"
#include "flow/completion.h"
#include "flow/hall_of_fame.h"
#include "flow/new_game.h"
#include "tests/support/scripted_desktop.h"
#include "tests/support/temporary_folder.h"

namespace cellora {

/// The recorded entries of some levels, best first.
using RecordedEntries = std::map<int, std::vector<HallOfFameEntry>>;

/// The file of best times, written independently of the program: all that is not recorded is empty.
inline std::string WriteHallOfFame(const RecordedEntries& recorded) {
    std::string strBytes;
    for (int intLevel = 1; intLevel <= 30; ++intLevel) {
        std::vector<HallOfFameEntry> entries;
        if (const auto it = recorded.find(intLevel); it != recorded.end())
            entries = it->second;
        entries.resize(10, {"(none)", 99, 99, 99});
        strBytes += std::to_string(intLevel) + "\r\n";
        for (const HallOfFameEntry& entry : entries)
            strBytes += "\"" + entry.strName + "\"\r\n" + std::to_string(entry.lngHours) + "\r\n" +
                        std::to_string(entry.lngMinutes) + "\r\n" +
                        std::to_string(entry.lngSeconds) + "\r\n";
    }
    return strBytes;
}

/// Where two files first differ; empty when they are the same byte for byte.
inline std::string FindDifference(const std::string& strActual, const std::string& strExpected) {
    if (strActual == strExpected)
        return {};
    const auto [it, itExpected] = std::ranges::mismatch(strActual, strExpected);
    const auto lngLine = std::count(strActual.begin(), it, '\n') + 1;
    const auto lngByte = it - strActual.begin();
    return "line " + std::to_string(lngLine) + ", byte " + std::to_string(lngByte) + " of " +
           std::to_string(strActual.size()) + ", expected " + std::to_string(strExpected.size());
}

/// Ten entries of one minute, two minutes and so on up to ten.
inline std::vector<HallOfFameEntry> MakeFullList() {
    std::vector<HallOfFameEntry> entries;
    for (int i = 1; i <= 10; ++i)
        entries.push_back({"Player " + std::to_string(i), 0, i, 0});
    return entries;
}

/// A game put together as the program does it, with a folder of its own and a scripted desktop.
class PlayedGame final {
public:
    explicit PlayedGame(const RecordedEntries& recorded = {}) {
        game.strProgramFolder = folder.Path();
        game.lngRandomState = 20'260'401;
        game.fnDoCellCount = DoCellCount;
        game.colors = {.lngColorGridCursor = 1,
                       .lngColorGridLines = 2,
                       .lngColorFontUser = 3,
                       .lngColorFontComputer = 4,
                       .lngColorScreenBackground = 5,
                       .lngColorGridX = 6,
                       .lngColorIncorrectCell = 7};
        WriteFile(WriteHallOfFame(recorded));
    }

    void WriteFile(const std::string& strBytes) { folder.WriteBytes("hof.clh", strBytes); }
    std::string ReadFile() const { return folder.ReadBytes("hof.clh"); }

    void Start(int intLevel) { StartNewGame(game, GetLevelName(intLevel)); }

    void SetTime(std::int32_t lngHours, std::int32_t lngMinutes, std::int32_t lngSeconds) {
        game.lngHours = lngHours;
        game.lngMinutes = lngMinutes;
        game.lngSeconds = lngSeconds;
        DoTime(game);
    }

    std::vector<int> FindEmptyCells() const {
        std::vector<int> cells;
        for (int i = 1; i <= intCellCount; ++i) {
            if (!game.cells[i].blnGiven && game.cells[i].strEntry.empty())
                cells.push_back(i);
        }
        return cells;
    }

    std::string GetWrongDigit(int intCell) const {
        return game.cells[intCell].strSolution == "9" ? "1" : "9";
    }

    /// Puts a digit into every empty cell, wrong ones first, without the pass that follows a move.
    void FillEmptyCells(int intMistakes) {
        for (const int i : FindEmptyCells())
            game.cells[i].strEntry =
                intMistakes-- > 0 ? GetWrongDigit(i) : game.cells[i].strSolution;
    }

    TemporaryFolder folder;
    ScriptedDesktop desktop;
    Game game{desktop};
};

/// What the rules keep of a game, as text: position, time, counts, flags and enabling.
inline std::string DescribeGame(const Game& game) {
    std::string strText;
    for (const Cell& cell : game.cells)
        strText += cell.strSolution + (cell.blnGiven ? '!' : '?') + cell.strEntry +
                   (cell.blnEntryShown ? 's' : 'h') + cell.strNotes +
                   (cell.wrongMark.blnOpaque ? "x" : "") + std::to_string(cell.outline.intWidth) +
                   ' ';
    for (const std::string& strLabel :
         {game.lblTime, game.lblLevel, game.lblVisibleCells, game.lblSolvedByYou,
          game.lblCellsToSolve, game.lblIncorrectCells, game.cmdFinished.strCaption})
        strText += strLabel + ' ';
    for (const int intNumber : {game.lngHours, game.lngMinutes, game.lngSeconds,
                                int{game.intCursorCell}, int{game.intSelectedNumber}})
        strText += std::to_string(intNumber) + ' ';
    for (const bool blnFlag :
         {game.blnGameChanged, game.blnGameActive, game.blnSolvedByComputer, game.blnPaused,
          game.picGrid.blnEnabled, game.picButtons.blnEnabled, game.picButtons.blnVisible,
          game.cmdFinished.blnVisible, game.mnuCellErrors.blnChecked, game.mnuCellErrors.blnEnabled,
          game.mnuSolveCell.blnEnabled, game.mnuSolve.blnEnabled, game.mnuPause.blnEnabled,
          game.tbrMain.blnButtonEnabled[10]})
        strText += blnFlag ? '1' : '0';
    return strText;
}

} // namespace cellora
