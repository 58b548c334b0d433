#include "ui/main/input_lock.h"

#include <algorithm>

#include <QCoreApplication>
#include <QEvent>
#include <QWidget>

namespace cellora {

namespace {

constexpr QEvent::Type aInputEvents[] = {
    QEvent::MouseButtonPress,
    QEvent::MouseButtonRelease,
    QEvent::MouseButtonDblClick,
    QEvent::MouseMove,
    QEvent::Enter,
    QEvent::HoverEnter,
    QEvent::HoverMove,
    QEvent::Wheel,
    QEvent::ContextMenu,
    QEvent::ToolTip,
    QEvent::KeyPress,
    QEvent::KeyRelease,
    QEvent::ShortcutOverride,
    QEvent::InputMethod,
    QEvent::TouchBegin,
    QEvent::TouchUpdate,
    QEvent::TouchEnd,
    QEvent::TabletPress,
    QEvent::TabletMove,
    QEvent::TabletRelease,
    QEvent::DragEnter,
};

} // namespace

InputLock::InputLock(const QWidget& window) : window_(window) {
    QCoreApplication::instance()->installEventFilter(this);
}

bool InputLock::eventFilter(QObject* watched, QEvent* event) {
    // The commands of a window take their keys, but are none of its widgets.
    if (event->type() == QEvent::Shortcut)
        return true;
    const auto* const widget = qobject_cast<QWidget*>(watched);
    return widget != nullptr && widget->window() == &window_ &&
           std::ranges::find(aInputEvents, event->type()) != std::end(aInputEvents);
}

} // namespace cellora
