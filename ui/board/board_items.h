#pragma once

#include <QFont>
#include <QGraphicsItem>

/// The elements the board is made of, in twips. Each adds itself to its scene, which owns it.
/// Setting what an element has already costs nothing.
namespace cellora {

/// A rectangle with an outline drawn inside it and an optional fill.
class ShapeItem final : public QGraphicsItem {
public:
    /// The outline's width is in pixels of 15 twips.
    ShapeItem(QRectF rect, int intOutlineWidth, QGraphicsScene& scene);

    void SetOutline(int intWidth, const QColor& color);

    /// An invalid colour leaves the rectangle unfilled.
    void SetFill(const QColor& color);

    QRectF boundingRect() const override { return rect_; }
    void paint(QPainter* painter, const QStyleOptionGraphicsItem*, QWidget*) override;

private:
    QRectF rect_;
    int intOutlineWidth_;
    QColor colorOutline_{Qt::black};
    QColor colorFill_;
};

/// One line of text from the top of a rectangle, on a transparent background.
class LabelItem final : public QGraphicsItem {
public:
    LabelItem(QRectF rect, const QFont& font, Qt::Alignment alignment, QGraphicsScene& scene);

    void SetText(const QString& strText);
    void SetColor(const QColor& color);

    QRectF boundingRect() const override { return rect_; }
    void paint(QPainter* painter, const QStyleOptionGraphicsItem*, QWidget*) override;

    /// A label reaches up to its right and lower edges, but not onto them.
    bool ContainsPoint(QPointF point) const {
        return point.x() >= rect_.left() && point.x() < rect_.right() && point.y() >= rect_.top() &&
               point.y() < rect_.bottom();
    }

private:
    QRectF rect_;
    QFont font_;
    Qt::Alignment alignment_;
    QString strText_;
    QColor color_{Qt::black};
};

/// The ring under the digit of a highlighted cell.
class RingItem final : public QGraphicsItem {
public:
    RingItem(QRectF rect, QGraphicsScene& scene);

    QRectF boundingRect() const override { return rect_; }
    void paint(QPainter* painter, const QStyleOptionGraphicsItem*, QWidget*) override;

private:
    QRectF rect_;
};

} // namespace cellora
