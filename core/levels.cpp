#include "core/levels.h"

#include <charconv>
#include <limits>
#include <system_error>
#include <utility>

#include "core/modCellora.h"
#include "core/modCreateSudoku.h"

namespace cellora {

std::string GetLevelName(int intLevel) {
    return "Level " + std::to_string(intLevel);
}

int GetClueCount(std::string_view strDifficulty) {
    for (int intLevel = 1; intLevel <= intLevelCount; ++intLevel)
        if (strDifficulty == GetLevelName(intLevel))
            return 50 - intLevel;
    return 0;
}

std::int16_t GetLevelNumber(std::string_view strCaption) {
    if (strCaption.size() > 2)
        strCaption.remove_prefix(strCaption.size() - 2);
    return static_cast<std::int16_t>(GetLeadingNumber(strCaption));
}

std::int32_t GetLeadingNumber(std::string_view strText) {
    const auto intStart = strText.find_first_not_of(' ');
    if (intStart == std::string_view::npos)
        return 0;
    strText.remove_prefix(intStart);
    std::int32_t lngNumber = 0;
    const auto result = std::from_chars(strText.data(), strText.data() + strText.size(), lngNumber);
    if (result.ec == std::errc::result_out_of_range)
        return strText.front() == '-' ? std::numeric_limits<std::int32_t>::min()
                                      : std::numeric_limits<std::int32_t>::max();
    return lngNumber;
}

std::int16_t Statistics::GetLevel() const {
    return GetLevelNumber(lblLevel);
}

void Statistics::AddVisibleCell() {
    lblVisibleCells = std::to_string(std::int64_t{GetLeadingNumber(lblVisibleCells)} + 1);
}

void HideSolution(Game& game) {
    for (Cell& cell : game.cells)
        cell.blnGiven = false;
}

void ShowPartial(Game& game, std::string strDifficulty) {
    const int intClues = GetClueCount(strDifficulty);
    for (int intShown = 0; intShown != intClues;) {
        Cell& cell = game.cells[RandomNumber(game, 1, intCellCount)];
        if (!cell.blnGiven) {
            cell.blnGiven = true;
            ++intShown;
        }
    }
    game.statistics.lblLevel = std::move(strDifficulty);
    game.statistics.lblVisibleCells = std::to_string(intClues);
}

} // namespace cellora
