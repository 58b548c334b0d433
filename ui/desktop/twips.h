#pragma once

#include <cmath>

#include <QRect>
#include <QSize>

/// Windows are measured in twips, 1/1440 inch: 15 to a pixel at 96 dots per inch. The toolkit
/// scales its pixels to the desktop's scale factor.
namespace cellora {

inline constexpr int intTwipsPerPixel = 15;

/// The side of the grid, on the screen and on paper.
inline constexpr double dblGridSize = 6735;

inline int ToPixels(double dblTwips) {
    return static_cast<int>(std::lround(dblTwips / intTwipsPerPixel));
}

inline QSize ToPixelSize(double dblWidth, double dblHeight) {
    return {ToPixels(dblWidth), ToPixels(dblHeight)};
}

inline QRect ToPixelRect(double dblLeft, double dblTop, double dblWidth, double dblHeight) {
    return {ToPixels(dblLeft), ToPixels(dblTop), ToPixels(dblWidth), ToPixels(dblHeight)};
}

} // namespace cellora
