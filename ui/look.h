#pragma once

#include <QColor>
#include <QFont>

#include "core/modCommon_Constants.h"

class QWidget;

/// Fonts, colours and style of the whole program: one light palette, whatever the desktop's theme.
namespace cellora {

enum class Weight { Regular, Bold };

/// The program's font in points of 1/72 inch at 96 dots per inch, for windows.
QFont MakeFont(double dblPoints, Weight weight = Weight::Regular);

/// The same font measured in twips, for the board's scene.
QFont MakeSceneFont(double dblPoints, Weight weight = Weight::Regular);

QColor ToQColor(Color lngColor);

/// Any colour without its transparency.
Color ToColor(const QColor& color);

/// Gives a pane a plain background.
void SetBackColor(QWidget& pane, Color lngColor);

/// Sets style, palette and default font (8 point) of the application, which exists already.
void ApplyLook();

} // namespace cellora
