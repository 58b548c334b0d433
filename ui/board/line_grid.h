#pragma once

#include <QPainter>
#include <QRectF>

#include "ui/desktop/twips.h"

namespace cellora {

/// Where the lines of the board come to lie on a device, in the coordinates of the item that is
/// painted. On the screen every line begins at a device pixel and lines of one kind are equally
/// wide; on paper everything keeps its true place. The painter may be moved and scaled alike in
/// both directions, not turned.
class LineGrid final {
public:
    enum class Device { Screen, Paper };

    LineGrid(const QPainter& painter, Device device);

    /// The place of a point that a line or a cell begins at.
    QPointF Place(QPointF point) const;

    /// The place of a rectangle whose right and lower outlines lie on the lines of the next ones.
    QRectF Place(const QRectF& rect) const;

    /// The width of an outline of 1, 2, 3 or 4 pixels of 15 twips. Each is a step wider than the
    /// one before, so that a line of 3 is what two of 2 that share one of 1 make together.
    double GetWidth(int intPixels) const;

private:
    QTransform toDevice_;
    bool blnSnaps_;
    double dblLine_ = intTwipsPerPixel;
    double dblStep_ = intTwipsPerPixel;
};

} // namespace cellora
