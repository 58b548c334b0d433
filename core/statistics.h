#pragma once

#include <cstdint>
#include <string>

#include "core/modCommon_Constants.h"

namespace cellora {

/// The captions of the statistics labels. An opened file may have put any text into them.
struct Statistics {
    std::string lblLevel;
    std::string lblVisibleCells = "0";
    std::string lblSolvedByYou = "0";
    std::string lblCellsToSolve = "0";
    std::string lblIncorrectCells{strHiddenCount};

    /// The level's number at the end of its caption, 0 where there is none.
    std::int16_t GetLevel() const;

    /// One more cell was solved before or by the program. The count is the number that the caption
    /// begins with.
    void AddVisibleCell();

    bool operator==(const Statistics&) const = default;
};

} // namespace cellora
