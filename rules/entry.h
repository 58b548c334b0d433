#pragma once

#include <cstdint>

/// What the player does to a single cell with mouse and keyboard.
namespace cellora {

struct Game;

/// Mouse buttons as the cell click knows them.
enum class MouseButton : std::int16_t { Left = 1, Right = 2, Middle = 4 };

/// Virtual-key codes of the keys that act on the grid; the digits 1 to 9 are 49 to 57 on the main
/// keyboard and 97 to 105 on the numeric keypad.
inline constexpr std::int16_t intKeyBackspace = 8;
inline constexpr std::int16_t intKeySpace = 32;
inline constexpr std::int16_t intKeyLeft = 37;
inline constexpr std::int16_t intKeyUp = 38;
inline constexpr std::int16_t intKeyRight = 39;
inline constexpr std::int16_t intKeyDown = 40;
inline constexpr std::int16_t intKeyDelete = 46;
inline constexpr std::int16_t intKeyDigit1 = 49;
inline constexpr std::int16_t intKeyKeypad1 = 97;

/// The digit 1 to 9 of a key, 0 for every other key.
int GetKeyDigit(std::int16_t intKeyCode);

/// A mouse release over cell 1 to 81: moves the cursor there, and opens the cell popup (right
/// button) or puts the selected number into the cell (other buttons, while the number selector is
/// on). The caller has made sure that the grid is enabled.
void CellClick(Game& game, int intIndex, MouseButton button);

/// Whether a left click writes into cell 1 to 81 while the grid is enabled: the number selector is
/// on and the cell no clue.
bool TakesClick(const Game& game, int intCell);

/// A key press on the grid or its border; any code may be passed. Nothing happens while no board is
/// shown or the board is locked.
void DoKeyDown(Game& game, std::int16_t intKeyCode);

/// Types a digit, given by its key code, into the cursor cell.
void DoCellEntry(Game& game, std::int16_t intKeyCode);

/// Empties the cursor cell and selects the eraser; the check of the key press follows.
void DoCellClear(Game& game);

} // namespace cellora
