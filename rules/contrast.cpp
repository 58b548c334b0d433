#include "rules/contrast.h"

#include <algorithm>
#include <cmath>

namespace cellora {

namespace {

constexpr double dblHardlySeen = 1.2;

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

/// So many of 64 parts of one colour, the rest of the other.
Color Mix(Color lngColor, Color lngOther, int intShare) {
    const auto MixPart = [=](int intBits) {
        return (GetPart(lngColor, intBits) * intShare +
                GetPart(lngOther, intBits) * (64 - intShare)) /
               64;
    };
    return MakeColor(MixPart(0), MixPart(8), MixPart(16));
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

Color Conceal(Color lngBehind) {
    for (int intShare = 64; intShare > 0; --intShare) {
        const Color lngColor = Mix(lngColorInactiveCaptionText, lngBehind, intShare);
        if (GetContrast(lngColor, lngBehind) <= dblHardlySeen)
            return lngColor;
    }
    return lngBehind;
}

} // namespace cellora
