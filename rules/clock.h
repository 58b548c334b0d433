#pragma once

#include <cstdint>
#include <string>

/// The game clock. Its three counters are the only record of the time played.
namespace cellora {

struct Game;

/// One second has passed. A locked board's time stands still.
void tmr_Timer(Game& game);

/// Carries seconds of 60 and more into the minutes, once.
void DoTime(Game& game);

/// The time played as hh:mm:ss, with more digits for 100 hours and more.
std::string GetTimeText(const Game& game);

/// The time played, in seconds.
std::int64_t GetTimeInSeconds(std::int32_t lngHours, std::int32_t lngMinutes,
                              std::int32_t lngSeconds);

/// Blanks the board, shows the pause window and goes on when it is closed, however it is closed.
/// Expects a game in play.
void PauseGame(Game& game);

} // namespace cellora
