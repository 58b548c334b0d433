#include "ui/main/key_echo.h"

#include <QApplication>
#include <QKeyEvent>

namespace cellora {

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
    const auto lngInterval = static_cast<quint64>(QApplication::doubleClickInterval());
    return blnHeld || press.timestamp() - lngPressed_ < lngInterval;
}

} // namespace cellora
