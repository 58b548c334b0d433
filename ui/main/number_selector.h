#pragma once

#include <QAbstractButton>
#include <QVariantAnimation>

#include "core/modCommon_Constants.h"
#include "core/numbered.h"

namespace cellora {

struct NumberButtonView;
struct View;

/// `picButton(n)`: a digit 1 to 9 or 10, the eraser. With the frame that the view gives
/// it, and another picture when its digit is complete, which settles over the first one. It answers
/// to the pointer and to its press.
class NumberSelectorButton final : public QAbstractButton {
    Q_OBJECT

public:
    NumberSelectorButton(int intNumber, QWidget* parent);

    void Mirror(const NumberButtonView& button);

    /// Place and size in the row at that zoom; 1 is the design's size.
    void SetZoom(double dblZoom);

signals:
    /// A release over the button, or its press by keyboard; the position is on the screen.
    void released(bool blnRightButton, QPoint globalPosition);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void nextCheckState() override;

private:
    QPoint GetPopupPosition() const;
    void DrawTile(QPainter& painter, const QRectF& rectPicture) const;
    void Settle();

    int intNumber_;
    double dblZoom_ = 1;
    bool blnFramed_ = false;
    bool blnShaded_ = false;
    QVariantAnimation settling_{this}; ///< from the plain picture, 0, to the shaded one, 1
    Color lngFrameColor_ = lngColorBlack;
};

/// `picButtons`: the row of ten number buttons.
class NumberSelector final : public QWidget {
    Q_OBJECT

public:
    explicit NumberSelector(QWidget* parent);

    /// Buttons, background, enabling and visibility.
    void Mirror(const View& view);

    /// Lays the buttons out for that zoom; 1 is the design's size. The row's own place and size are
    /// the window's.
    void SetZoom(double dblZoom);

signals:
    /// A button 1 to 10 was released; the position is on the screen.
    void numberReleased(int intNumber, bool blnRightButton, QPoint globalPosition);

private:
    Numbered<NumberSelectorButton*, intEraser> picButton_;
};

} // namespace cellora
