#pragma once

#include <QFrame>

namespace cellora {

/// A field that shows a colour, with an edge that is seen around every one.
class ColorSwatch final : public QFrame {
    Q_OBJECT

public:
    explicit ColorSwatch(QWidget* parent);

    void SetColor(const QColor& color);

private:
    void paintEvent(QPaintEvent* event) override;

    QColor color_;
};

} // namespace cellora
