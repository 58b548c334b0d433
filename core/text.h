#pragma once

#include <string_view>

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

} // namespace cellora
