#include "rules/contrast.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace cellora {

namespace {

constexpr double dblReads = 4.5;
constexpr double dblSeen = 3;
constexpr double dblHardlySeen = 1.06;
constexpr int intHardlySeen = 8; ///< of 255, as colours as light as another can differ

constexpr int intWhole = 64;
constexpr int intThird = 21;

constexpr int GetPart(Color lngColor, int intBits) {
    return (lngColor >> intBits) & 0xFF;
}

/// From 0 for black to 1 for white.
double GetLuminance(Color lngColor) {
    const auto GetLight = [lngColor](int intBits) {
        const double dblPart = GetPart(lngColor, intBits) / 255.0;
        return dblPart <= 0.04045 ? dblPart / 12.92 : std::pow((dblPart + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * GetLight(0) + 0.7152 * GetLight(8) + 0.0722 * GetLight(16);
}

/// The largest difference of their parts.
int GetDistance(Color lngColor, Color lngOther) {
    const auto Differ = [=](int intBits) {
        return std::abs(GetPart(lngColor, intBits) - GetPart(lngOther, intBits));
    };
    return std::max({Differ(0), Differ(8), Differ(16)});
}

/// So many of `intWhole` parts of one colour, the rest of the other.
Color Mix(Color lngColor, Color lngOther, int intShare) {
    const auto MixPart = [=](int intBits) {
        return (GetPart(lngColor, intBits) * intShare +
                GetPart(lngOther, intBits) * (intWhole - intShare)) /
               intWhole;
    };
    return MakeColor(MixPart(0), MixPart(8), MixPart(16));
}

/// As much of one colour in the other as passes the test, and no more than that share.
template <typename Test>
Color MixMost(Color lngColor, Color lngOther, int intMost, Test fnTest) {
    for (int intShare = intMost; intShare > 0; --intShare) {
        if (const Color lngMixed = Mix(lngColor, lngOther, intShare); fnTest(lngMixed))
            return lngMixed;
    }
    return lngOther;
}

} // namespace

double GetContrast(Color lngColor, Color lngBehind) {
    const auto [dblDark, dblLight] = std::minmax({GetLuminance(lngColor), GetLuminance(lngBehind)});
    return (dblLight + 0.05) / (dblDark + 0.05);
}

Color ChooseInk(Color lngBehind) {
    return GetContrast(lngColorBlack, lngBehind) >= GetContrast(lngColorWhite, lngBehind)
               ? lngColorBlack
               : lngColorWhite;
}

Color MakeSeen(Color lngColor, Color lngBehind) {
    return MixMost(lngColor, ChooseInk(lngBehind), intWhole, [lngBehind](Color lngMixed) {
        return GetContrast(lngMixed, lngBehind) >= dblSeen;
    });
}

Color Tint(Color lngColor, Color lngBehind, Color lngText) {
    const double dblLeast = std::min(GetContrast(lngText, lngBehind), dblReads);
    return MixMost(lngColor, lngBehind, intThird,
                   [=](Color lngMixed) { return GetContrast(lngText, lngMixed) >= dblLeast; });
}

Color Conceal(Color lngBehind) {
    return MixMost(lngColorInactiveCaptionText, lngBehind, intWhole, [lngBehind](Color lngMixed) {
        return GetContrast(lngMixed, lngBehind) <= dblHardlySeen &&
               GetDistance(lngMixed, lngBehind) <= intHardlySeen;
    });
}

} // namespace cellora
