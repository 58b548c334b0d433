#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "store/hall_of_fame_form.h"

/// The ten best times of each level, kept in the file "hof.clh" in the program's folder
/// (docs/file-formats.md). Nothing of the file is cached.
namespace cellora {

struct Game;

/// The rank of a time that earns no place.
inline constexpr std::int16_t intNoRank = 99;

/// Reads one level's ten entries. Errors may be ignored: what a missing, short or damaged file does
/// not give keeps the value it had before the call. A file that is there but cannot be read gives
/// nothing, and the reason is returned in one sentence.
std::optional<std::string> ReadHallOfFame(const Game& game, int intLevel, LevelEntries& entries);

/// The level of the game in play, read from the end of its caption; 0 where it names none.
std::int16_t GetCurrentLevel(const Game& game);

/// The place 1 to 10 the current time takes in its level, or 99. A time equal to a stored one
/// ranks ahead of it.
std::int16_t GetRank(const Game& game);

/// The same among these entries.
std::int16_t GetRank(const Game& game, const LevelEntries& entries);

/// Inserts the current game under that name at the rank its time has now, and rewrites the file
/// whole, under a lock shared by all running copies. A damaged file is kept beside it first, as
/// "hof.clh.damaged", or "hof.clh.damaged-2" and so on where others are kept already; what it does
/// not give becomes empty entries, and the player is told. A missing file counts as empty; one that
/// cannot be read whole stays. A time whose place was taken meanwhile is not entered, which the
/// player is told. Nothing is returned when done, else the reason in one sentence. The name holds
/// no double quote and no line break.
std::optional<std::string> SaveHallOfFameEntry(const Game& game, const std::string& strName);

/// Replaces the file by one with empty entries only, whatever it holds, be it damaged or not to be
/// read; results as above.
std::optional<std::string> ResetHallOfFame(const Game& game);

/// The highest level whose first entry is not empty; 0 when there is none. Without a file no entry
/// reads as empty, which gives 30.
std::int16_t GetHighestRecordedLevel(const Game& game);

/// Hours, minutes and seconds, each as its last two digits: 3:5:9 reads 03:05:09.
std::string FormatEntryTime(const HallOfFameEntry& entry);

/// The announcement that a file of best times could not be written.
void ShowHallOfFameError(Game& game, const std::string& strReason);

} // namespace cellora
