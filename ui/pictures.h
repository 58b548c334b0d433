#pragma once

#include <QCursor>
#include <QIcon>
#include <QPixmap>
#include <QString>

class QPainter;
class QRectF;

/// The program's pictures: SVG files compiled in from assets/pictures, drawn sharp at every scale.
namespace cellora {

/// The picture drawn at a size in the toolkit's pixels, for a screen with that many device pixels
/// to each.
QPixmap MakePixmap(const QString& strName, QSize size, qreal dblDevicePixelRatio);

/// An icon that draws itself at the size and scale asked for.
QIcon MakeIcon(const QString& strName);

/// A 32 x 32 pointer whose hot spot is its upper left tip.
QCursor MakePointer(const QString& strName, qreal dblDevicePixelRatio);

/// The picture's path among the program's resources, from its name without ".svg".
QString GetPicturePath(const QString& strName);

} // namespace cellora
