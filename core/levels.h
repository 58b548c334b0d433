#pragma once

#include <cstdint>
#include <string>
#include <string_view>

/// The 30 levels of difficulty and the clues they reveal.
namespace cellora {

struct Game;

/// "Level 1" to "Level 30".
std::string GetLevelName(int intLevel);

/// The cells a level reveals: 49 for "Level 1" down to 20 for "Level 30", 0 for any other text.
int GetClueCount(std::string_view strDifficulty);

/// The number in the last two characters of a level caption; 0 where they hold none.
std::int16_t GetLevelNumber(std::string_view strCaption);

/// The leading whole number of a text as `lblVisibleCells` holds it, held to the range of 32 bits;
/// 0 where the text does not begin with one.
std::int32_t GetLeadingNumber(std::string_view strText);

/// Hides the solution of every cell.
void HideSolution(Game& game);

/// Reveals the level's number of hidden cells at random, and shows level and clue count in the
/// statistics. Cells that are given already stay given and are not counted. Expects enough hidden
/// cells for the level; a new game hides all of them first.
void ShowPartial(Game& game, std::string strDifficulty);

} // namespace cellora
