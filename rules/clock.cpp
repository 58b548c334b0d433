#include "rules/clock.h"

#include <cassert>
#include <limits>

#include "core/desktop.h"
#include "core/modCellora.h"
#include "rules/cursor.h"

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

} // namespace

void tmr_Timer(Game& game) {
    if (game.phase == Phase::Finished)
        return;
    AddOne(game.lngSeconds);
    DoTime(game);
}

void DoTime(Game& game) {
    if (game.lngSeconds < 60)
        return;
    AddOne(game.lngMinutes);
    game.lngSeconds -= 60;
    if (game.lngMinutes >= 60) {
        game.lngMinutes = 0;
        AddOne(game.lngHours);
    }
}

std::string GetTimeText(const Game& game) {
    return FormatTwoDigits(game.lngHours) + ':' + FormatTwoDigits(game.lngMinutes) + ':' +
           FormatTwoDigits(game.lngSeconds);
}

std::int64_t GetTimeInSeconds(std::int32_t lngHours, std::int32_t lngMinutes,
                              std::int32_t lngSeconds) {
    return std::int64_t{lngHours} * 3600 + std::int64_t{lngMinutes} * 60 + lngSeconds;
}

void PauseGame(Game& game) {
    assert(game.phase == Phase::Playing);
    game.phase = Phase::Paused;
    game.desktop.EnableTimer(Timer::tmr, false);
    game.desktop.ShowModal(ModalWindow::frmPause);
    DrawOutlinesAsLines(game);
    game.desktop.EnableTimer(Timer::tmr, true);
    game.phase = Phase::Playing;
}

} // namespace cellora
