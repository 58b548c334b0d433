#pragma once

#include <optional>

#include <QAbstractButton>

#include "core/modCellora.h"

namespace cellora {

/// `picButton(n)`: a digit 1 to 9 or the eraser. Framed when it is selected, with another picture
/// when its digit is complete.
class NumberSelectorButton final : public QAbstractButton {
    Q_OBJECT

public:
    NumberSelectorButton(int intNumber, QWidget* parent);

    void Mirror(const NumberButton& button, bool blnSelected);

signals:
    /// A release over the button, or its press by keyboard; the position is on the screen.
    void released(bool blnRightButton, QPoint globalPosition);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void nextCheckState() override;

private:
    QString GetPictureName() const;
    QPoint GetPopupPosition() const;

    int intNumber_;
    bool blnFramed_ = false;
    bool blnShaded_ = false;
};

/// `picButtons`: the row of ten number buttons.
class NumberSelector final : public QWidget {
    Q_OBJECT

public:
    explicit NumberSelector(QWidget* parent);

    void Mirror(const Game& game);

    NumberSelectorButton& picButton(int n) { return *picButton_[n]; }

signals:
    void numberReleased(int intNumber, bool blnRightButton, QPoint globalPosition);

private:
    Numbered<NumberSelectorButton*, intEraser> picButton_;
    std::optional<Color> lngBackColor_;
};

} // namespace cellora
