#include "ui/dialogs/color_swatch.h"

#include <QPainter>

#include "ui/desktop/snap.h"

namespace cellora {

ColorSwatch::ColorSwatch(QWidget* parent) : QFrame(parent) {}

void ColorSwatch::SetColor(const QColor& color) {
    color_ = color;
    setAccessibleDescription(color.name());
    update();
}

void ColorSwatch::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(SnapInside(painter, rect()), color_);
    DrawFrame(painter, rect(), palette().color(QPalette::Shadow));
}

} // namespace cellora
