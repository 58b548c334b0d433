#include "ui/main/context_menu.h"

#include <utility>

#include <QApplication>
#include <QMouseEvent>
#include <QWindow>

namespace cellora {

namespace {

/// Presses the mouse once more on what lies under it. The release comes by itself, from the mouse.
void PressAgain(const QMouseEvent& event) {
    const QPoint position = event.globalPosition().toPoint();
    const QWidget* const widget = QApplication::widgetAt(position);
    if (widget == nullptr)
        return; // of another program
    QWindow* const window = widget->window()->windowHandle();
    const QPointF local = window->mapFromGlobal(event.globalPosition());
    // Posted, because until this event is through the menu counts as open.
    QCoreApplication::postEvent(window, new QMouseEvent(QEvent::MouseButtonPress, local, local,
                                                        event.globalPosition(), event.button(),
                                                        event.buttons(), event.modifiers()));
}

} // namespace

void ContextMenu::showEvent(QShowEvent* event) {
    QMenu::showEvent(event);
    sinceShown_.start();
    positionShown_ = QCursor::pos();
    blnPressed_ = false;
    setAttribute(Qt::WA_NoMouseReplay, false);
}

void ContextMenu::mousePressEvent(QMouseEvent* event) {
    if (IsDoubleClick(*event))
        return;
    blnPressed_ = rect().contains(event->position().toPoint());
    const bool blnAgain = !blnPressed_ && event->button() == Qt::RightButton;
    if (blnAgain)
        setAttribute(Qt::WA_NoMouseReplay); // some desktops do it, with every button
    QMenu::mousePressEvent(event);
    if (blnAgain)
        PressAgain(*event);
}

void ContextMenu::mouseReleaseEvent(QMouseEvent* event) {
    if (!std::exchange(blnPressed_, false))
        return;
    QAction* const action = actionAt(event->position().toPoint());
    if (action == nullptr || action->isSeparator() || !action->isEnabled())
        return QMenu::mouseReleaseEvent(event);
    // The toolkit would take a click close to where the menu opened for none.
    close();
    action->trigger();
}

bool ContextMenu::IsDoubleClick(const QMouseEvent& event) const {
    const QPoint jitter = event.globalPosition().toPoint() - positionShown_;
    return event.button() == Qt::RightButton &&
           sinceShown_.elapsed() < QApplication::doubleClickInterval() &&
           jitter.manhattanLength() < QApplication::startDragDistance();
}

} // namespace cellora
