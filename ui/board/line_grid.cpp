#include "ui/board/line_grid.h"

#include <algorithm>
#include <cmath>

namespace cellora {

namespace {

double GetLinePixels(double dblPixels) {
    return std::max(1.0, std::floor(dblPixels + 0.5));
}

/// Rounded up late, so that the cursor's three steps keep clear of the notes.
double GetStepPixels(double dblPixels) {
    return std::max(1.0, std::floor(dblPixels + 0.25));
}

} // namespace

LineGrid::LineGrid(const QPainter& painter, Device device)
    : toDevice_(painter.deviceTransform()), blnSnaps_(device == Device::Screen) {
    if (!blnSnaps_)
        return;
    const double dblScale = toDevice_.m11();
    dblLine_ = GetLinePixels(intTwipsPerPixel * dblScale) / dblScale;
    dblStep_ = GetStepPixels(intTwipsPerPixel * dblScale) / dblScale;
}

QPointF LineGrid::Place(QPointF point) const {
    if (!blnSnaps_)
        return point;
    const QPointF place = toDevice_.map(point);
    return {(std::round(place.x()) - toDevice_.dx()) / toDevice_.m11(),
            (std::round(place.y()) - toDevice_.dy()) / toDevice_.m22()};
}

QRectF LineGrid::Place(const QRectF& rect) const {
    constexpr QPointF line(intTwipsPerPixel, intTwipsPerPixel);
    const QPointF end = Place(rect.bottomRight() - line);
    return {Place(rect.topLeft()), end + QPointF(dblLine_, dblLine_)};
}

double LineGrid::GetWidth(int intPixels) const {
    return dblLine_ + dblStep_ * (intPixels - 1);
}

} // namespace cellora
