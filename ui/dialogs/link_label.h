#pragma once

#include <QLabel>

namespace cellora {

/// A line of blue underlined text that is clicked with the mouse, or with Enter or Space while it
/// has the focus.
class LinkLabel final : public QLabel {
    Q_OBJECT

public:
    explicit LinkLabel(QWidget* parent);

signals:
    void clicked();

private:
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
};

} // namespace cellora
