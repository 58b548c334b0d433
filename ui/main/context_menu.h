#pragma once

#include <QElapsedTimer>
#include <QMenu>

namespace cellora {

/// A menu that a right click opens. An entry is chosen only by a press of the mouse begun on an
/// entry; the second press of a double right click is none. A right click elsewhere closes the menu
/// and is a click there as well; with the other buttons it is that where the desktop has it so.
class ContextMenu : public QMenu {
    Q_OBJECT

public:
    using QMenu::QMenu;

protected:
    void showEvent(QShowEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    /// Whether the press belongs to the click that opened the menu.
    bool IsDoubleClick(const QMouseEvent& event) const;

    QElapsedTimer sinceShown_;
    QPoint positionShown_; ///< of the mouse, on the screen
    bool blnPressed_ = false;
};

} // namespace cellora
