#include "ui/desktop/echo.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>

namespace cellora {

namespace {

/// Whether two times in milliseconds make one double click of two clicks.
bool AreNear(quint64 lngBefore, quint64 lngAfter) {
    return lngAfter - lngBefore < static_cast<quint64>(QApplication::doubleClickInterval());
}

} // namespace

KeyEcho::KeyEcho(const QKeyEvent& press)
    : intKey_(press.key()), lngScanCode_(press.nativeScanCode()), lngPressed_(press.timestamp()) {
    QCoreApplication::instance()->installEventFilter(this);
}

bool KeyEcho::eventFilter(QObject*, QEvent* event) {
    if (blnOver_ || (event->type() != QEvent::KeyPress && event->type() != QEvent::KeyRelease))
        return false;
    const auto& key = *static_cast<QKeyEvent*>(event);
    // A key press that another program made up may come without its time.
    if (key.key() != intKey_ || key.nativeScanCode() != lngScanCode_ || key.timestamp() == 0)
        return false;
    if (event->type() == QEvent::KeyRelease) {
        lngReleased_ = key.timestamp();
        return false;
    }
    blnOver_ = !IsEcho(key);
    lngPressed_ = key.timestamp();
    return !blnOver_;
}

bool KeyEcho::IsEcho(const QKeyEvent& press) const {
    // Of a key held down an X server makes releases and presses, which the toolkit does not always
    // see through.
    const bool blnHeld = press.isAutoRepeat() || press.timestamp() == lngReleased_;
    return blnHeld || AreNear(lngPressed_, press.timestamp());
}

MouseEcho::MouseEcho(const QMouseEvent& release)
    : button_(release.button()), lngReleased_(release.timestamp()) {
    QCoreApplication::instance()->installEventFilter(this);
}

bool MouseEcho::eventFilter(QObject*, QEvent* event) {
    if (event->type() != QEvent::MouseButtonPress && event->type() != QEvent::MouseButtonDblClick)
        return false;
    const auto& press = *static_cast<QMouseEvent*>(event);
    return QApplication::activeModalWidget() != nullptr && press.button() == button_ &&
           AreNear(lngReleased_, press.timestamp());
}

} // namespace cellora
