#pragma once

#include <QRectF>
#include <QString>

class QBrush;
class QColor;
class QPainter;

/// Drawing on whole device pixels, so that lines of one kind are equally wide and no side is lost
/// at a fractional scale.
namespace cellora {

/// The largest rectangle of whole device pixels that lies in another one; both in the painter's
/// measure, which is not rotated.
QRectF SnapInside(const QPainter& painter, const QRectF& rect);

/// The width of a line of that many units of the painter's measure, in the same measure: whole
/// device pixels, the nearest number of them and one at least.
double SnapWidth(const QPainter& painter, double dblWidth);

/// A line along the inner edge of a rectangle, as wide on every side. Both are snapped.
void DrawFrame(QPainter& painter, const QRectF& rect, const QColor& color, double dblWidth = 1,
               double dblRadius = 0);

/// A filled rectangle with such a line along its edge.
void DrawPlate(QPainter& painter, const QRectF& rect, const QBrush& fill, const QColor& colorEdge,
               double dblRadius);

/// The answer of what can be pressed to the pointer, over all that is drawn of it: a tint of a
/// colour that is seen there, deeper while it is pressed.
void DrawTint(QPainter& painter, const QRectF& rect, QColor color, bool blnPressed,
              double dblRadius = 0);

/// The mark of the control that has the keyboard, the same in every window: a ring just inside a
/// rectangle.
void DrawFocusRing(QPainter& painter, const QRectF& rect, const QColor& color);

/// The picture of that name drawn from its vectors into a snapped rectangle.
void DrawPicture(QPainter& painter, const QRectF& rect, const QString& strName);

} // namespace cellora
