#include "ui/dialogs/color_swatch.h"

#include <QPainter>

#include "ui/desktop/crisp.h"

namespace cellora {

ColorSwatch::ColorSwatch(QWidget* parent) : QFrame(parent) {}

void ColorSwatch::SetColor(const QColor& color) {
    color_ = color;
    setAccessibleDescription(color.name());
    update();
}

void ColorSwatch::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    DrawCrispFrame(painter, rect(), palette().color(QPalette::Shadow), color_);
}

} // namespace cellora
