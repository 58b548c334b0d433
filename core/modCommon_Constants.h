#pragma once

#include <cstdint>
#include <string_view>

/// Names and values that every floor of the program shares.
namespace cellora {

/// A colour as the settings file stores it: red in the lowest byte, then green, then blue.
using Color = std::int32_t;

/// Each part 0 to 255.
constexpr Color MakeColor(int intRed, int intGreen, int intBlue) {
    return intRed | (intGreen << 8) | (intBlue << 16);
}

inline constexpr Color lngColorWhite = MakeColor(255, 255, 255);
inline constexpr Color lngColorBlack = MakeColor(0, 0, 0);
inline constexpr Color lngColorRed = MakeColor(255, 0, 0);
inline constexpr Color lngColorBlue = MakeColor(0, 0, 255);
inline constexpr Color lngColorLightYellow = MakeColor(255, 255, 192);

/// The fixed palette's stand-ins for the desktop's system colours. The inactive caption text is
/// close to the board's white, so that a paused board cannot be studied.
inline constexpr Color lngColorInactiveCaptionText = MakeColor(248, 249, 250);
inline constexpr Color lngColorButtonShadow = MakeColor(140, 152, 164);
inline constexpr Color lngColorWindowText = lngColorBlack;
inline constexpr Color lngColorButtonText = lngColorBlack;

inline constexpr int intCellCount = 81;
inline constexpr int intCenterCell = 41;
inline constexpr int intLevelCount = 30;

/// The number selector's eraser; 0 stands for no number at all.
inline constexpr int intEraser = 10;

inline constexpr std::string_view strProductName = "Cellora";
inline constexpr std::string_view strSettingsFileName = "cl.ini";
inline constexpr std::string_view strHallOfFameFileName = "hof.clh";

/// Lines of messages and files end in carriage return and line feed.
inline constexpr std::string_view strLineBreak = "\r\n";
inline constexpr std::string_view strParagraphBreak = "\r\n\r\n";

inline constexpr std::string_view strHiddenCount = "(hidden)";

} // namespace cellora
