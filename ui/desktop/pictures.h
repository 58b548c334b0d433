#pragma once

#include <QCursor>
#include <QIcon>
#include <QPixmap>
#include <QString>

class QWidget;

/// The program's pictures: SVG files compiled in from assets/pictures, drawn sharp at every scale.
namespace cellora {

/// The picture drawn at a size in the toolkit's pixels, for a screen with that many device pixels
/// to each.
QPixmap MakePixmap(const QString& strName, QSize size, qreal dblDevicePixelRatio);

/// The picture of a number button, 1 to 9 or 10, the eraser; of a digit that is complete, shaded.
QString GetButtonPicture(int intNumber, bool blnShaded = false);

/// An icon that draws itself at the size and scale asked for.
QIcon MakeIcon(const QString& strName);

/// Gives a window the program's icon. On Windows it has it from the program's file, where the small
/// sizes are drawn apart.
void SetProgramIcon(QWidget& window);

/// A 32 x 32 pointer whose hot spot is its upper left tip.
QCursor MakePointer(const QString& strName, qreal dblDevicePixelRatio);

} // namespace cellora
