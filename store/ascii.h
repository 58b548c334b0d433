#pragma once

#include <algorithm>
#include <string_view>

namespace cellora {

/// True when the texts differ at most in the case of the letters A to Z, whatever the locale.
inline bool EqualsIgnoringCase(std::string_view strOne, std::string_view strOther) {
    constexpr auto ToLower = [](char c) {
        return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    };
    return std::ranges::equal(strOne, strOther, {}, ToLower, ToLower);
}

} // namespace cellora
