#include "flow/clock.h"

#include <limits>

namespace cellora {

namespace {

/// An opened file may hold counters at the end of their range; there they stay.
void AddOne(std::int32_t& lngCounter) {
    if (lngCounter < std::numeric_limits<std::int32_t>::max())
        ++lngCounter;
}

std::string FormatTwoDigits(std::int32_t lngNumber) {
    const std::string strNumber = std::to_string(lngNumber);
    return strNumber.size() < 2 ? '0' + strNumber : strNumber;
}

void ColorBoard(Game& game, Color lngLines, Color lngUser, Color lngComputer) {
    ApplyUserFontColor(game, lngUser);
    ApplyComputerFontColor(game, lngComputer);
    ApplyGridLineColor(game, lngLines);
}

void ColorStatistics(Game& game, Color lngFrame, Color lngText) {
    game.boardColors.lngStatisticsFrame = lngFrame;
    game.boardColors.lngStatisticsText = lngText;
}

void HideGame(Game& game) {
    constexpr Color lngInactive = lngColorInactiveCaptionText;
    game.blnPaused = true;
    game.desktop.EnableTimer(Timer::tmr, false);
    ColorBoard(game, lngInactive, lngInactive, lngInactive);
    game.picButtons.blnVisible = false;
    ColorStatistics(game, lngInactive, lngInactive);
    game.tbrMain.blnButtonEnabled.fill(false);
}

void RestoreGame(Game& game) {
    const ColorSettings& colors = game.colors;
    ColorBoard(game, colors.lngColorGridLines, colors.lngColorFontUser,
               colors.lngColorFontComputer);
    game.picButtons.blnVisible = game.mnuNumberSelector.blnChecked;
    ColorStatistics(game, lngColorWindowText, lngColorButtonText);
    game.tbrMain.blnButtonEnabled.fill(true);
    game.desktop.EnableTimer(Timer::tmr, true);
    game.blnPaused = false;
}

} // namespace

void tmr_Timer(Game& game) {
    if (!game.picGrid.blnEnabled)
        return;
    AddOne(game.lngSeconds);
    DoTime(game);
}

void DoTime(Game& game) {
    if (game.lngSeconds >= 60) {
        AddOne(game.lngMinutes);
        game.lngSeconds -= 60;
        if (game.lngMinutes >= 60) {
            game.lngMinutes = 0;
            AddOne(game.lngHours);
        }
    }
    game.lblTime = FormatTwoDigits(game.lngHours) + ':' + FormatTwoDigits(game.lngMinutes) + ':' +
                   FormatTwoDigits(game.lngSeconds);
}

std::int64_t GetTimeInSeconds(std::int32_t lngHours, std::int32_t lngMinutes,
                              std::int32_t lngSeconds) {
    return std::int64_t{lngHours} * 3600 + std::int64_t{lngMinutes} * 60 + lngSeconds;
}

void PauseGame(Game& game) {
    HideGame(game);
    game.desktop.ShowModal(ModalWindow::frmPause);
    RestoreGame(game);
}

} // namespace cellora
