#pragma once

#include <string>
#include <string_view>

#include "core/modCommon_Constants.h"
#include "core/text.h"

/// The cells of the board. They are numbered 1 to 81, row by row from the top-left cell; only the
/// generator counts from 0.
namespace cellora {

/// Row 0 to 8 from the top.
constexpr int GetRow(int intCell) {
    return (intCell - 1) / 9;
}

/// Column 0 to 8 from the left.
constexpr int GetColumn(int intCell) {
    return (intCell - 1) % 9;
}

/// 3 x 3 region 0 to 8, row by row.
constexpr int GetRegion(int intCell) {
    return 3 * (GetRow(intCell) / 3) + GetColumn(intCell) / 3;
}

/// The border drawn round a cell as it was drawn last. Width in pixels of 15 twips: 1, or up to 4
/// round the cursor cell. After a pause the cursor keeps its width in the colour of the lines.
struct Outline {
    int intWidth = 1;
    bool blnCursorColor = false; ///< else the colour of the grid lines

    bool operator==(const Outline&) const = default;
};

/// The fill behind a cell whose entry is marked wrong. It keeps the colour it was marked in.
struct WrongMark {
    bool blnOpaque = false;
    Color lngColor = lngColorWhite;

    bool operator==(const WrongMark&) const = default;
};

/// One cell as the game knows it. The texts hold one digit or nothing while a game made here is
/// played; an opened file may have put any text into them.
struct Cell {
    std::string strSolution;
    bool blnGiven = false; ///< the solution is shown and the cell takes no digit and no notes
    std::string strEntry;
    bool blnEntryShown = true;
    std::string strNotes; ///< a digit and a blank per note, in the order they were added
    WrongMark wrongMark;
    Outline outline;

    /// An entry that differs from the solution, as text.
    bool IsIncorrect() const { return !strEntry.empty() && strEntry != strSolution; }

    /// The digit the player can see in the cell.
    const std::string& GetShownText() const { return blnGiven ? strSolution : strEntry; }

    /// An entry with more than blanks in it.
    bool HasEntry() const { return !Trim(strEntry).empty(); }

    /// Whether the entry, blanks around it aside, is another one than the solution.
    bool IsMistaken() const { return HasEntry() && Trim(strEntry) != Trim(strSolution); }

    /// The digit 1 to 9 that the solution begins with, 0 for none.
    int GetSolutionDigit() const {
        const std::string_view strDigit = Trim(strSolution);
        return strDigit.empty() ? 0 : GetDigitValue(strDigit.front());
    }

    /// The digit 1 to 9 that the player sees alone in the cell, 0 for none.
    int GetShownDigit() const {
        const std::string_view strShown = Trim(GetShownText());
        return strShown.size() == 1 ? GetDigitValue(strShown.front()) : 0;
    }

    bool operator==(const Cell&) const = default;
};

} // namespace cellora
