#pragma once

#include <cstdint>

#include <QColor>
#include <QFont>
#include <QPalette>

class QWidget;

/// Fonts, colours and style of the whole program: one light palette, whatever the desktop's theme.
namespace cellora {

enum class Weight { Regular, Bold };

/// The program's font in points of 1/72 inch at 96 dots per inch, for windows. Of the families that
/// it may have it is the first that can be drawn at any size.
QFont MakeFont(double dblPoints, Weight weight = Weight::Regular);

/// The same font measured in twips, for the board's scene.
QFont MakeSceneFont(double dblPoints, Weight weight = Weight::Regular);

/// The program's colours.
QPalette MakePalette();

/// The toolkit's colour for one of the rules, which has red in its lowest byte, then green, then
/// blue; and back, without its transparency.
QColor ToQColor(std::int32_t lngColor);
std::int32_t ToColor(const QColor& color);

/// Gives a pane a plain background in a colour of the rules. The colour it has already costs
/// nothing.
void SetBackColor(QWidget& pane, std::int32_t lngColor);

/// Sets style, palette and default font (8 point) of the application, which exists already. They
/// hold from then on, whatever the desktop's theme does. Called once.
void ApplyLook();

} // namespace cellora
