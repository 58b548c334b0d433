#pragma once

#include <QColor>
#include <QRectF>

class QPainter;

/// Lines that are one kind are equally wide at every scale of the desktop, on whole device pixels.
namespace cellora {

/// Draws a frame just inside `rect`, in the painter's coordinates, all four sides of the same whole
/// number of device pixels, and fills it where a colour is given.
void DrawCrispFrame(QPainter& painter, const QRectF& rect, const QColor& colorEdge,
                    const QColor& colorFill = {});

/// The mark of the control that has the keyboard, the same in every window: a ring just inside
/// `rect`.
void DrawFocusRing(QPainter& painter, const QRectF& rect, const QColor& color);

} // namespace cellora
