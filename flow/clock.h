#pragma once

#include <cstdint>

#include "core/modCellora.h"

/// The game clock. Its three counters are the only record of the time played.
namespace cellora {

/// One second has passed. A locked board's time stands still.
void tmr_Timer(Game& game);

/// Carries seconds of 60 and more into the minutes, once, and shows the time as hh:mm:ss.
void DoTime(Game& game);

/// The time played, in seconds.
std::int64_t GetTimeInSeconds(std::int32_t lngHours, std::int32_t lngMinutes,
                              std::int32_t lngSeconds);

/// Blanks the board, shows the pause window and goes on when it is closed, however it is closed.
void PauseGame(Game& game);

} // namespace cellora
