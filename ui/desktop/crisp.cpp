#include "ui/desktop/crisp.h"

#include <algorithm>
#include <cmath>

#include <QPainter>

namespace cellora {

namespace {

constexpr double dblFocusWidth = 1.4; ///< one device pixel at the plain scale, then two
constexpr double dblFocusRadius = 2;

/// The pixels of the device that the toolkit counts as those of `rect`.
QRectF GetWholePixels(const QRectF& rect) {
    return {QPointF(std::round(rect.left()), std::round(rect.top())),
            QPointF(std::round(rect.right()), std::round(rect.bottom()))};
}

struct Frame {
    QPen pen;
    QBrush brush;
    double dblRadius;
};

void DrawOnPixels(QPainter& painter, const QRectF& rect, Frame frame) {
    const QTransform toDevice = painter.deviceTransform();
    const double dblScale = toDevice.m11();
    const double dblPixels = std::max(1.0, std::round(frame.pen.widthF() * dblScale));
    const double dblInset = dblPixels / 2;
    const double dblRadius = frame.dblRadius * dblScale;
    const QRectF whole = GetWholePixels(toDevice.mapRect(rect));
    frame.pen.setWidthF(dblPixels);
    frame.pen.setJoinStyle(Qt::MiterJoin);
    painter.save();
    painter.setTransform(toDevice.inverted(), true);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(frame.pen);
    painter.setBrush(frame.brush);
    painter.drawRoundedRect(whole.adjusted(dblInset, dblInset, -dblInset, -dblInset), dblRadius,
                            dblRadius);
    painter.restore();
}

} // namespace

void DrawCrispFrame(QPainter& painter, const QRectF& rect, const QColor& colorEdge,
                    const QColor& colorFill) {
    const QBrush brush = colorFill.isValid() ? QBrush(colorFill) : QBrush(Qt::NoBrush);
    DrawOnPixels(painter, rect, {QPen(colorEdge, 1), brush, 0});
}

void DrawFocusRing(QPainter& painter, const QRectF& rect, const QColor& color) {
    DrawOnPixels(painter, rect, {QPen(color, dblFocusWidth), Qt::NoBrush, dblFocusRadius});
}

} // namespace cellora
