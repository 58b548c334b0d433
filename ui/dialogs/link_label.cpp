#include "ui/dialogs/link_label.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QStyleOptionFocusRect>
#include <QStylePainter>

namespace cellora {

LinkLabel::LinkLabel(QWidget* parent) : QLabel(parent) {
    setTextFormat(Qt::PlainText);
    setCursor(Qt::PointingHandCursor);
    setFocusPolicy(Qt::StrongFocus);
    setForegroundRole(QPalette::Link);
    QFont fontLink = font();
    fontLink.setUnderline(true);
    setFont(fontLink);
}

void LinkLabel::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint()))
        emit clicked();
}

void LinkLabel::keyPressEvent(QKeyEvent* event) {
    const int intKey = event->key();
    if (intKey == Qt::Key_Return || intKey == Qt::Key_Enter || intKey == Qt::Key_Space)
        emit clicked();
    else
        QLabel::keyPressEvent(event);
}

void LinkLabel::paintEvent(QPaintEvent* event) {
    QLabel::paintEvent(event);
    if (!hasFocus())
        return;
    QStylePainter painter(this);
    QStyleOptionFocusRect option;
    option.initFrom(this);
    painter.drawPrimitive(QStyle::PE_FrameFocusRect, option);
}

} // namespace cellora
