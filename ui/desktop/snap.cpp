#include "ui/desktop/snap.h"

#include <algorithm>
#include <cmath>

#include <QColor>
#include <QPainter>

#include "ui/desktop/pictures.h"

namespace cellora {

namespace {

/// An edge that lies on a device pixel but for the error of the computation stays there.
constexpr double dblTolerance = 0.01;

QRect GetDeviceRect(const QPainter& painter, const QRectF& rect) {
    const QRectF device = painter.deviceTransform().mapRect(rect);
    const QPoint topLeft(static_cast<int>(std::ceil(device.left() - dblTolerance)),
                         static_cast<int>(std::ceil(device.top() - dblTolerance)));
    const QPoint end(static_cast<int>(std::floor(device.right() + dblTolerance)),
                     static_cast<int>(std::floor(device.bottom() + dblTolerance)));
    return {topLeft, end - QPoint(1, 1)};
}

} // namespace

QRectF SnapInside(const QPainter& painter, const QRectF& rect) {
    return painter.deviceTransform().inverted().mapRect(QRectF(GetDeviceRect(painter, rect)));
}

double SnapWidth(const QPainter& painter, double dblWidth) {
    const double dblScale = painter.deviceTransform().m11();
    return std::max(1.0, std::floor(dblWidth * dblScale + dblTolerance)) / dblScale;
}

void DrawFrame(QPainter& painter, const QRectF& rect, const QColor& color, double dblWidth) {
    const QRectF outer = SnapInside(painter, rect);
    const double dblLine = SnapWidth(painter, dblWidth);
    const QRectF inner = outer.adjusted(0, dblLine, 0, -dblLine);
    painter.fillRect(QRectF(outer.topLeft(), inner.topRight()), color);
    painter.fillRect(QRectF(inner.bottomLeft(), outer.bottomRight()), color);
    painter.fillRect(QRectF(inner.topLeft(), QSizeF(dblLine, inner.height())), color);
    painter.fillRect(QRectF(inner.topRight() - QPointF(dblLine, 0), inner.bottomRight()), color);
}

void DrawPicture(QPainter& painter, const QRectF& rect, const QString& strName) {
    const QRectF place = SnapInside(painter, rect);
    painter.drawPixmap(place, MakePixmap(strName, GetDeviceRect(painter, rect).size(), 1),
                       QRectF());
}

} // namespace cellora
