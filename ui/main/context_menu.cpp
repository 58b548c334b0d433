#include "ui/main/context_menu.h"

#include <utility>

#include <QApplication>
#include <QMouseEvent>
#include <QWindow>

namespace cellora {

namespace {

/// Clicks once more, on what lies under the mouse now.
void ClickAgain(const QMouseEvent& event) {
    const QPoint position = event.globalPosition().toPoint();
    const QWidget* const widget = QApplication::widgetAt(position);
    if (widget == nullptr)
        return; // of another program
    QWindow* const window = widget->window()->windowHandle();
    const QPointF local = window->mapFromGlobal(event.globalPosition());
    for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
        const Qt::MouseButtons down =
            type == QEvent::MouseButtonPress ? event.button() : Qt::NoButton;
        // Posted, because until this event is through the menu counts as open.
        QCoreApplication::postEvent(window,
                                    new QMouseEvent(type, local, local, event.globalPosition(),
                                                    event.button(), down, event.modifiers()));
    }
}

} // namespace

void ContextMenu::Open(QPoint position) {
    position_ = position;
    press_ = Press::None;
    popup(position);
    sinceOpened_.start();
}

void ContextMenu::mousePressEvent(QMouseEvent* event) {
    if (IsDoubleClick(*event))
        return;
    const bool blnInside = rect().contains(event->position().toPoint());
    press_ = blnInside ? Press::Inside : Press::Outside;
    // Of a right click elsewhere the menu has to see the end, which the desktop might send to
    // either window were it closed before.
    if (blnInside || event->button() != Qt::RightButton)
        QMenu::mousePressEvent(event);
}

void ContextMenu::mouseReleaseEvent(QMouseEvent* event) {
    const Press press = std::exchange(press_, Press::None);
    if (press == Press::Inside) {
        ReleaseInside(event);
    } else if (press == Press::Outside) {
        close();
        ClickAgain(*event);
    }
}

void ContextMenu::ReleaseInside(QMouseEvent* event) {
    QAction* const action = actionAt(event->position().toPoint());
    if (action == nullptr || action->isSeparator() || !action->isEnabled())
        return QMenu::mouseReleaseEvent(event);
    // The toolkit would take a click close to where the menu opened for none.
    close();
    action->trigger();
}

bool ContextMenu::IsDoubleClick(const QMouseEvent& event) const {
    const QPoint jitter = event.globalPosition().toPoint() - position_;
    return event.button() == Qt::RightButton &&
           sinceOpened_.elapsed() < QApplication::doubleClickInterval() &&
           jitter.manhattanLength() < 2 * QApplication::startDragDistance();
}

} // namespace cellora
