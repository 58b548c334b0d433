#include "ui/board/board_items.h"

#include <QGraphicsScene>
#include <QPainter>

#include "ui/desktop/twips.h"

namespace cellora {

ShapeItem::ShapeItem(QRectF rect, int intOutlineWidth, QGraphicsScene& scene)
    : rect_(rect), intOutlineWidth_(intOutlineWidth) {
    scene.addItem(this);
}

void ShapeItem::SetOutline(int intWidth, const QColor& color) {
    if (intWidth == intOutlineWidth_ && color == colorOutline_)
        return;
    intOutlineWidth_ = intWidth;
    colorOutline_ = color;
    update();
}

void ShapeItem::SetFill(const QColor& color) {
    if (color == colorFill_)
        return;
    colorFill_ = color;
    update();
}

void ShapeItem::paint(QPainter* painter, const QStyleOptionGraphicsItem*, QWidget*) {
    const qreal dblWidth = intOutlineWidth_ * intTwipsPerPixel;
    const qreal dblInset = dblWidth / 2;
    painter->setPen(QPen(colorOutline_, dblWidth, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter->setBrush(colorFill_.isValid() ? QBrush(colorFill_) : QBrush(Qt::NoBrush));
    painter->drawRect(rect_.adjusted(dblInset, dblInset, -dblInset, -dblInset));
}

LabelItem::LabelItem(QRectF rect, const QFont& font, Qt::Alignment alignment, QGraphicsScene& scene)
    : rect_(rect), font_(font), alignment_(alignment) {
    scene.addItem(this);
}

void LabelItem::SetText(const QString& strText) {
    if (strText == strText_)
        return;
    strText_ = strText;
    update();
}

void LabelItem::SetColor(const QColor& color) {
    if (color == color_)
        return;
    color_ = color;
    if (!strText_.isEmpty())
        update();
}

void LabelItem::paint(QPainter* painter, const QStyleOptionGraphicsItem*, QWidget*) {
    if (strText_.isEmpty())
        return;
    painter->setFont(font_);
    painter->setPen(color_);
    painter->drawText(rect_, static_cast<int>(alignment_ | Qt::AlignTop | Qt::TextSingleLine),
                      strText_);
}

RingItem::RingItem(QRectF rect, QGraphicsScene& scene) : rect_(rect) {
    scene.addItem(this);
}

void RingItem::paint(QPainter* painter, const QStyleOptionGraphicsItem*, QWidget*) {
    constexpr qreal dblWidth = 2 * intTwipsPerPixel;
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(QPen(QColor(0xC9, 0x7A, 0x10), dblWidth));
    painter->setBrush(QColor(0xFF, 0xE3, 0xB0));
    painter->drawEllipse(rect_.adjusted(dblWidth, dblWidth, -dblWidth, -dblWidth));
    painter->restore();
}

} // namespace cellora
