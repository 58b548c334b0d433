#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "core/numbered.h"
#include "core/statistics.h"

/// What a saved-game file holds, and its form: 413 lines of one value each (docs/file-formats.md).
namespace cellora {

struct Game;

/// A larger file is no saved game.
inline constexpr std::size_t lngMaxSavedGameBytes = std::size_t{1} << 20U;

struct SavedCell {
    bool blnGiven = false;
    std::string strSolution;
    std::string strEntry;
    std::string strNotes;

    bool operator==(const SavedCell&) const = default;
};

/// The part of a game that outlives the program. Texts of an opened file stand as they were
/// written: a level, count, digit or note may be any bytes but a line feed.
struct SavedGame {
    std::int32_t lngHours = 0;
    std::int32_t lngMinutes = 0;
    std::int32_t lngSeconds = 0;
    Statistics statistics;
    Numbered<SavedCell, intCellCount> cells;

    bool operator==(const SavedGame&) const = default;
};

/// The bytes of the file. Expects texts without a line feed; every such game reads back the same.
std::string FormatSavedGame(const SavedGame& savedGame);

/// Nothing unless the bytes begin with the 413 values in their order and form: numbers of 32 bits
/// (of 16 bits for the cell numbers, quoted or not, whose values are ignored), texts in double
/// quotes, #TRUE# or #FALSE#. A text reaches from the first to the last quote of its line. Lines
/// end with CR LF or LF, the last one may lack its end, and what follows it is not looked at.
std::optional<SavedGame> ParseSavedGame(std::string_view bytes);

/// The record of the game on the board.
SavedGame TakeGame(const Game& game);

/// Puts the record on the board: its clock counters, cells and statistics replace those of the
/// game, entries are shown and outlines are thin. Wrong marks and whether a game is in play or
/// changed are left to the caller.
void PutGame(Game& game, const SavedGame& savedGame);

} // namespace cellora
