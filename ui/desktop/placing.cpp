#include "ui/desktop/placing.h"

#include <algorithm>

#include <QScreen>
#include <QWidget>
#include <QWindow>

namespace cellora {

namespace {

/// Until a window is shown its frame is expected to be that of the window it belongs to.
QMargins GetFrame(const QWidget& window) {
    QMargins frame;
    for (const QWidget* widget = &window; frame.isNull() && widget != nullptr;
         widget = widget->parentWidget()) {
        if (const QWindow* const handle = widget->windowHandle())
            frame = handle->frameMargins();
    }
    return frame;
}

} // namespace

QSize GetLargestSize(const QWidget& window) {
    return window.screen()->availableSize().shrunkBy(GetFrame(window));
}

void CenterOnScreen(QWidget& window) {
    const QMargins frame = GetFrame(window);
    const QRect rectScreen = window.screen()->geometry();
    const QRect rectAvailable = window.screen()->availableGeometry();
    QRect rect(QPoint(), window.size().grownBy(frame));
    const QSize sizeFree = rectScreen.size() - rect.size();
    rect.moveTo(rectScreen.topLeft() + QPoint(sizeFree.width() / 2, sizeFree.height() / 2));
    rect.moveRight(std::min(rect.right(), rectAvailable.right()));
    rect.moveBottom(std::min(rect.bottom(), rectAvailable.bottom()));
    rect.moveLeft(std::max(rect.left(), rectAvailable.left()));
    rect.moveTop(std::max(rect.top(), rectAvailable.top()));
    // Not by its frame, which the window system may not have given to it yet.
    window.setGeometry(rect.marginsRemoved(frame));
}

} // namespace cellora
