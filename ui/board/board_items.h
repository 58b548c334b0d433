#pragma once

#include <QFont>
#include <QGraphicsItem>

/// The elements the board is made of, in twips. Each adds itself to its scene, which owns it.
/// Setting what an element has already costs nothing.
namespace cellora {

/// A rectangle with an outline drawn inside it and an optional fill. Rectangles side by side share
/// one line.
class ShapeItem final : public QGraphicsItem {
public:
    /// The outline's width is in pixels of 15 twips.
    ShapeItem(QRectF rect, int intOutlineWidth, QGraphicsScene& scene);

    void SetOutline(int intWidth, const QColor& color);

    /// An invalid colour leaves the rectangle unfilled.
    void SetFill(const QColor& color);

    QRectF boundingRect() const override;
    void paint(QPainter* painter, const QStyleOptionGraphicsItem*, QWidget* widget) override;

private:
    QRectF rect_;
    int intOutlineWidth_;
    QColor colorOutline_{Qt::black};
    QColor colorFill_;
};

/// The outline of a cell, 1 to 4 wide. A thick one grows to both sides of the lines round the cell,
/// as far as the notes in the cell and those beside and below it leave room.
class CellOutlineItem final : public QGraphicsItem {
public:
    /// In the first column and the first row the line of the cell is the board's thick border.
    CellOutlineItem(QRectF rect, bool blnFirstColumn, bool blnFirstRow, QGraphicsScene& scene);

    void SetOutline(int intWidth, const QColor& color);

    QRectF boundingRect() const override;
    void paint(QPainter* painter, const QStyleOptionGraphicsItem*, QWidget* widget) override;

private:
    QRectF rect_;
    bool blnFirstColumn_;
    bool blnFirstRow_;
    int intWidth_ = 1;
    QColor color_{Qt::black};
};

/// One line of text from the top of a rectangle, on a transparent background.
class LabelItem final : public QGraphicsItem {
public:
    /// The text keeps its place relative to the cell, wherever that is drawn.
    LabelItem(QRectF rect, QPointF cell, const QFont& font, Qt::Alignment alignment,
              QGraphicsScene& scene);

    void SetText(const QString& strText);
    void SetColor(const QColor& color);

    QRectF boundingRect() const override { return rect_; }
    void paint(QPainter* painter, const QStyleOptionGraphicsItem*, QWidget* widget) override;

    /// A label reaches up to its right and lower edges, but not onto them.
    bool ContainsPoint(QPointF point) const {
        return point.x() >= rect_.left() && point.x() < rect_.right() && point.y() >= rect_.top() &&
               point.y() < rect_.bottom();
    }

private:
    QRectF rect_;
    QPointF cell_;
    QFont font_;
    Qt::Alignment alignment_;
    QString strText_;
    QColor color_{Qt::black};
};

/// The ring under the digit of a highlighted cell.
class RingItem final : public QGraphicsItem {
public:
    RingItem(QRectF rect, QGraphicsScene& scene);

    void SetColors(const QColor& colorLine, const QColor& colorFill);

    QRectF boundingRect() const override { return rect_; }
    void paint(QPainter* painter, const QStyleOptionGraphicsItem*, QWidget*) override;

private:
    QRectF rect_;
    QColor colorLine_;
    QColor colorFill_;
};

/// The small cross in the lower right corner of a wrong cell, clear of its digit and notes.
class MarkItem final : public QGraphicsItem {
public:
    MarkItem(QRectF rectCell, QGraphicsScene& scene);

    void SetColor(const QColor& color);

    QRectF boundingRect() const override { return rectCell_; }
    void paint(QPainter* painter, const QStyleOptionGraphicsItem*, QWidget* widget) override;

private:
    QRectF rectCell_;
    QColor color_;
};

/// A faint tint of one cell after the other, on the screen alone.
class HintItem final : public QGraphicsItem {
public:
    HintItem(QSizeF size, QGraphicsScene& scene);

    /// Tints the cell that begins there.
    void Show(QPointF cell, const QColor& color);

    QRectF boundingRect() const override;
    void paint(QPainter* painter, const QStyleOptionGraphicsItem*, QWidget* widget) override;

private:
    QSizeF size_;
    QColor color_;
};

} // namespace cellora
