#include "ui/board/board_items.h"

#include <algorithm>

#include <QGraphicsScene>
#include <QPainter>

#include "ui/board/line_grid.h"
#include "ui/desktop/twips.h"

namespace cellora {

namespace {

/// A text that begins at the left edge keeps clear of the cursor's outline.
constexpr qreal dblTextInset = intTwipsPerPixel;

/// Only the view names the widget it paints on.
LineGrid MakeLineGrid(const QPainter& painter, const QWidget* widget) {
    return {painter, widget != nullptr ? LineGrid::Device::Screen : LineGrid::Device::Paper};
}

/// What is drawn of a rectangle after its lines have been snapped, at 75 % too.
QRectF AllowForSnapping(const QRectF& rect) {
    constexpr qreal dblMargin = 2 * intTwipsPerPixel;
    return rect.adjusted(-dblMargin, -dblMargin, dblMargin, dblMargin);
}

/// Draws an outline inside a rectangle, which the painter's brush fills.
void DrawOutlined(QPainter& painter, const QRectF& rect, qreal dblWidth, const QColor& color) {
    const qreal dblInset = dblWidth / 2;
    painter.setPen(QPen(color, dblWidth, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter.drawRect(rect.adjusted(dblInset, dblInset, -dblInset, -dblInset));
}

} // namespace

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

QRectF ShapeItem::boundingRect() const {
    return AllowForSnapping(rect_);
}

void ShapeItem::paint(QPainter* painter, const QStyleOptionGraphicsItem*, QWidget* widget) {
    const LineGrid lines = MakeLineGrid(*painter, widget);
    painter->setBrush(colorFill_.isValid() ? QBrush(colorFill_) : QBrush(Qt::NoBrush));
    DrawOutlined(*painter, lines.Place(rect_), lines.GetWidth(intOutlineWidth_), colorOutline_);
}

CellOutlineItem::CellOutlineItem(QRectF rect, bool blnFirstColumn, bool blnFirstRow,
                                 QGraphicsScene& scene)
    : rect_(rect), blnFirstColumn_(blnFirstColumn), blnFirstRow_(blnFirstRow) {
    scene.addItem(this);
}

void CellOutlineItem::SetOutline(int intWidth, const QColor& color) {
    if (intWidth == intWidth_ && color == color_)
        return;
    intWidth_ = intWidth;
    color_ = color;
    update();
}

QRectF CellOutlineItem::boundingRect() const {
    constexpr qreal dblGrowth = 2 * intTwipsPerPixel;
    return AllowForSnapping(rect_.adjusted(-dblGrowth, -dblGrowth, dblGrowth, dblGrowth));
}

void CellOutlineItem::paint(QPainter* painter, const QStyleOptionGraphicsItem*, QWidget* widget) {
    const LineGrid lines = MakeLineGrid(*painter, widget);
    const double dblStep = lines.GetWidth(2) - lines.GetWidth(1);
    const double dblBefore = dblStep * std::max(0, intWidth_ - 2);
    const double dblAtBorder = std::min(dblBefore, dblStep);
    const int intBehind = (intWidth_ - 1) / 2;
    const double dblBehind = dblStep * intBehind;
    painter->setBrush(Qt::NoBrush);
    DrawOutlined(*painter,
                 lines.Place(rect_).adjusted(-(blnFirstColumn_ ? dblAtBorder : dblBefore),
                                             -(blnFirstRow_ ? dblAtBorder : dblBefore), dblBehind,
                                             dblBehind),
                 lines.GetWidth(intWidth_), color_);
}

LabelItem::LabelItem(QRectF rect, QPointF cell, const QFont& font, Qt::Alignment alignment,
                     QGraphicsScene& scene)
    : rect_(rect), cell_(cell), font_(font), alignment_(alignment) {
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

void LabelItem::paint(QPainter* painter, const QStyleOptionGraphicsItem*, QWidget* widget) {
    if (strText_.isEmpty())
        return;
    const qreal dblInset = alignment_.testFlag(Qt::AlignLeft) ? dblTextInset : 0;
    const QRectF rect = rect_.translated(MakeLineGrid(*painter, widget).Place(cell_) - cell_);
    painter->setFont(font_);
    painter->setPen(color_);
    painter->drawText(rect.adjusted(dblInset, 0, 0, 0),
                      static_cast<int>(alignment_ | Qt::AlignTop | Qt::TextSingleLine), strText_);
}

RingItem::RingItem(QRectF rect, QGraphicsScene& scene) : rect_(rect) {
    scene.addItem(this);
}

void RingItem::SetColors(const QColor& colorLine, const QColor& colorFill) {
    if (colorLine == colorLine_ && colorFill == colorFill_)
        return;
    colorLine_ = colorLine;
    colorFill_ = colorFill;
    update();
}

void RingItem::paint(QPainter* painter, const QStyleOptionGraphicsItem*, QWidget*) {
    constexpr qreal dblWidth = 2 * intTwipsPerPixel;
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(QPen(colorLine_, dblWidth));
    painter->setBrush(colorFill_);
    painter->drawEllipse(rect_.adjusted(dblWidth, dblWidth, -dblWidth, -dblWidth));
    painter->restore();
}

MarkItem::MarkItem(QRectF rectCell, QGraphicsScene& scene) : rectCell_(rectCell) {
    scene.addItem(this);
}

void MarkItem::SetColor(const QColor& color) {
    if (color == color_)
        return;
    color_ = color;
    update();
}

void MarkItem::paint(QPainter* painter, const QStyleOptionGraphicsItem*, QWidget* widget) {
    constexpr qreal dblSize = 6 * intTwipsPerPixel;
    constexpr QPointF place(37.5 * intTwipsPerPixel, 37.5 * intTwipsPerPixel);
    const QPointF cell = MakeLineGrid(*painter, widget).Place(rectCell_.topLeft());
    const QRectF rect(cell + place, QSizeF(dblSize, dblSize));
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(QPen(color_, 1.75 * intTwipsPerPixel, Qt::SolidLine, Qt::RoundCap));
    painter->drawLine(rect.topLeft(), rect.bottomRight());
    painter->drawLine(rect.bottomLeft(), rect.topRight());
    painter->restore();
}

HintItem::HintItem(QSizeF size, QGraphicsScene& scene) : size_(size) {
    setVisible(false);
    scene.addItem(this);
}

void HintItem::Show(QPointF cell, const QColor& color) {
    setPos(cell);
    if (color != color_) {
        color_ = color;
        update();
    }
    setVisible(true);
}

QRectF HintItem::boundingRect() const {
    return AllowForSnapping({QPointF(), size_});
}

void HintItem::paint(QPainter* painter, const QStyleOptionGraphicsItem*, QWidget* widget) {
    if (widget == nullptr)
        return;
    constexpr float dblStrength = 0.08F;
    QColor color = color_;
    color.setAlphaF(dblStrength);
    painter->fillRect(MakeLineGrid(*painter, widget).Place(QRectF({}, size_)), color);
}

} // namespace cellora
