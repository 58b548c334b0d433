#pragma once

#include <charconv>
#include <concepts>
#include <optional>
#include <string_view>
#include <system_error>

namespace cellora {

/// The text without its leading and trailing blanks.
constexpr std::string_view Trim(std::string_view strText) {
    const auto intFirst = strText.find_first_not_of(' ');
    if (intFirst == std::string_view::npos)
        return {};
    return strText.substr(intFirst, strText.find_last_not_of(' ') - intFirst + 1);
}

/// The value 1 to 9 of a digit; 0 for every other character.
constexpr int GetDigitValue(char character) {
    return character >= '1' && character <= '9' ? character - '0' : 0;
}

/// The number that the whole text is in decimal digits, with at most a minus sign before them;
/// nothing for any other text and for numbers that do not fit.
template <std::integral Whole>
std::optional<Whole> ParseWhole(std::string_view strText) {
    const char* const pEnd = strText.data() + strText.size();
    Whole number = 0;
    const auto result = std::from_chars(strText.data(), pEnd, number);
    const bool blnGood = result.ec == std::errc{} && result.ptr == pEnd;
    return blnGood ? std::optional(number) : std::nullopt;
}

/// Takes the first line off the text and returns it without its end, LF or CR LF. A text after the
/// last line end counts as a line; of an empty text it returns empty lines.
constexpr std::string_view TakeLine(std::string_view& strText) {
    const auto intEnd = strText.find('\n');
    std::string_view strLine = strText.substr(0, intEnd);
    strText.remove_prefix(intEnd == std::string_view::npos ? strText.size() : intEnd + 1);
    if (strLine.ends_with('\r'))
        strLine.remove_suffix(1);
    return strLine;
}

} // namespace cellora
