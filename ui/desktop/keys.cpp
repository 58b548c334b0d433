#include "ui/desktop/keys.h"

#include <QGuiApplication>
#include <QKeyEvent>

#include "rules/entry.h"

namespace cellora {

namespace {

struct KeyCode {
    int intKey;
    std::int16_t intCode;
};

constexpr KeyCode aKeyCodes[] = {
    {Qt::Key_Backspace, intKeyBackspace},
    {Qt::Key_Space, intKeySpace},
    {Qt::Key_Delete, intKeyDelete},
    {Qt::Key_Left, intKeyLeft},
    {Qt::Key_Up, intKeyUp},
    {Qt::Key_Right, intKeyRight},
    {Qt::Key_Down, intKeyDown},
};

std::int16_t GetDigitCode(int intDigit, bool blnKeypad) {
    const int intFirst = blnKeypad ? intKeyKeypad1 : intKeyDigit1;
    return static_cast<std::int16_t>(intFirst + intDigit - 1);
}

/// The digit 1 to 9 printed on a key of the main row, whatever the keyboard's layout and the Shift
/// key make of it; 0 for other keys and where the desktop does not tell.
int GetRowDigit(const QKeyEvent& event) {
#ifdef Q_OS_WIN
    constexpr quint32 lngFirstCode = '1'; // the virtual key "1", which layouts keep in the main row
    const quint32 lngCode = event.nativeVirtualKey();
    constexpr bool blnKnown = true;
#else
    constexpr quint32 lngFirstCode = 10; // X11's scan code of the key "1", and Wayland's
    const quint32 lngCode = event.nativeScanCode();
    static const bool blnKnown = QGuiApplication::platformName() == QLatin1String("xcb") ||
                                 QGuiApplication::platformName() == QLatin1String("wayland");
#endif
    if (!blnKnown || lngCode < lngFirstCode || lngCode >= lngFirstCode + 9)
        return 0;
    return static_cast<int>(lngCode - lngFirstCode) + 1;
}

} // namespace

std::int16_t GetVirtualKey(const QKeyEvent& event) {
    const int intKey = event.key();
    for (const KeyCode& code : aKeyCodes) {
        if (code.intKey == intKey)
            return code.intCode;
    }
    if (intKey >= Qt::Key_1 && intKey <= Qt::Key_9)
        return GetDigitCode(intKey - Qt::Key_0, event.modifiers().testFlag(Qt::KeypadModifier));
    if (const int intDigit = GetRowDigit(event); intDigit != 0)
        return GetDigitCode(intDigit, false);
    return 0;
}

bool IsPopupKey(const QKeyEvent& event) {
    return event.key() == Qt::Key_F10 && event.modifiers() == Qt::ShiftModifier;
}

} // namespace cellora
