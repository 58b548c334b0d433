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

    /// Shows the menu at the place of the click on the screen.
    void Open(QPoint position);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    /// Where the mouse button that is down was pressed.
    enum class Press { None, Inside, Outside };

    void ReleaseInside(QMouseEvent* event);
    /// Whether the press belongs to the click that opened the menu.
    bool IsDoubleClick(const QMouseEvent& event) const;

    QElapsedTimer sinceOpened_;
    QPoint position_; ///< of the click, on the screen
    Press press_ = Press::None;
};

} // namespace cellora
