#include "ui/desktop/snap.h"

#include <algorithm>
#include <cmath>

#include <QColor>
#include <QPainter>
#include <QPainterPath>
#include <QPen>

#include "ui/desktop/pictures.h"

namespace cellora {

namespace {

/// An edge that lies on a device pixel but for the error of the computation stays there.
constexpr double dblTolerance = 0.01;

constexpr double dblRingWidth = 1.25; ///< one device pixel at the plain scale, then two
constexpr double dblRingRadius = 2;

constexpr float dblHoverTint = 0.12F; ///< of 1
constexpr float dblPressTint = 0.28F;

QRect GetDeviceRect(const QPainter& painter, const QRectF& rect) {
    const QRectF device = painter.deviceTransform().mapRect(rect);
    const QPoint topLeft(static_cast<int>(std::ceil(device.left() - dblTolerance)),
                         static_cast<int>(std::ceil(device.top() - dblTolerance)));
    const QPoint end(static_cast<int>(std::floor(device.right() + dblTolerance)),
                     static_cast<int>(std::floor(device.bottom() + dblTolerance)));
    return {topLeft, end - QPoint(1, 1)};
}

/// Half a pixel is left off: the room beside a line of one pixel is not wider.
double CountPixels(const QPainter& painter, double dblWidth) {
    return std::max(1.0, std::round(dblWidth * painter.deviceTransform().m11() - dblTolerance));
}

/// A pen that smooths would leave the corners pale.
void FillOutlined(QPainter& painter, const QRect& outer, const QBrush& fill, const QColor& color,
                  int intPixels) {
    const QRect inner = outer.adjusted(intPixels, intPixels, -intPixels, -intPixels);
    QPainterPath frame;
    frame.addRect(outer);
    frame.addRect(inner);
    if (fill != Qt::NoBrush)
        painter.fillRect(inner, fill);
    painter.fillPath(frame, color);
}

/// A line of whole device pixels along the inner edge, round a fill.
void DrawOutlined(QPainter& painter, const QRectF& rect, const QBrush& fill, const QColor& color,
                  double dblWidth, double dblRadius) {
    const QTransform toDevice = painter.deviceTransform();
    const double dblPixels = CountPixels(painter, dblWidth);
    const double dblInset = dblPixels / 2;
    const double dblDeviceRadius = dblRadius * toDevice.m11();
    const QRect outer = GetDeviceRect(painter, rect);
    painter.save();
    painter.setTransform(toDevice.inverted(), true);
    if (dblRadius == 0) {
        FillOutlined(painter, outer, fill, color, static_cast<int>(dblPixels));
    } else {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(color, dblPixels, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
        painter.setBrush(fill);
        painter.drawRoundedRect(QRectF(outer).adjusted(dblInset, dblInset, -dblInset, -dblInset),
                                dblDeviceRadius, dblDeviceRadius);
    }
    painter.restore();
}

} // namespace

QRectF SnapInside(const QPainter& painter, const QRectF& rect) {
    return painter.deviceTransform().inverted().mapRect(QRectF(GetDeviceRect(painter, rect)));
}

double SnapWidth(const QPainter& painter, double dblWidth) {
    return CountPixels(painter, dblWidth) / painter.deviceTransform().m11();
}

void DrawFrame(QPainter& painter, const QRectF& rect, const QColor& color, double dblWidth,
               double dblRadius) {
    DrawOutlined(painter, rect, Qt::NoBrush, color, dblWidth, dblRadius);
}

void DrawPlate(QPainter& painter, const QRectF& rect, const QBrush& fill, const QColor& colorEdge,
               double dblRadius) {
    DrawOutlined(painter, rect, fill, colorEdge, 1, dblRadius);
}

void DrawTint(QPainter& painter, const QRectF& rect, QColor color, bool blnPressed,
              double dblRadius) {
    color.setAlphaF(blnPressed ? dblPressTint : dblHoverTint);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    painter.drawRoundedRect(SnapInside(painter, rect), dblRadius, dblRadius);
    painter.restore();
}

void DrawFocusRing(QPainter& painter, const QRectF& rect, const QColor& color) {
    DrawFrame(painter, rect, color, dblRingWidth, dblRingRadius);
}

void DrawPicture(QPainter& painter, const QRectF& rect, const QString& strName) {
    const QRectF place = SnapInside(painter, rect);
    painter.drawPixmap(place, MakePixmap(strName, GetDeviceRect(painter, rect).size(), 1),
                       QRectF());
}

} // namespace cellora
