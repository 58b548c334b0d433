#pragma once

#include <array>
#include <cstdint>

/// How large the board is shown, in percent of its design.
namespace cellora {

inline constexpr std::array<std::int16_t, 8> aZoomSteps = {75, 100, 125, 150, 175, 200, 250, 300};

inline constexpr std::int16_t intPlainZoom = 100;

/// The step nearest to a percentage, the smaller of two; a percentage beyond all steps is no zoom
/// and counts as 100.
constexpr std::int16_t GetNearestZoom(int intPercent) {
    if (intPercent < aZoomSteps.front() || intPercent > aZoomSteps.back())
        return intPlainZoom;
    std::int16_t intNearest = aZoomSteps.front();
    for (const std::int16_t intStep : aZoomSteps) {
        if (2 * intPercent > intNearest + intStep)
            intNearest = intStep;
    }
    return intNearest;
}

} // namespace cellora
