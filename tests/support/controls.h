#pragma once

#include <stdexcept>

#include <QTest>
#include <QWidget>

namespace cellora {

/// The control of that name and kind; a window without it fails the test.
template <typename Control>
Control& GetControl(const QWidget& window, const char* strName) {
    auto* const control = window.findChild<Control*>(QLatin1String(strName));
    if (control == nullptr)
        throw std::runtime_error(std::string("no control ") + strName);
    return *control;
}

inline void ShowActive(QWidget& window) {
    window.show();
    window.activateWindow();
    if (!QTest::qWaitForWindowActive(&window))
        throw std::runtime_error("the window did not become active");
}

inline void ClickControl(const QWidget& window, const char* strName) {
    QTest::mouseClick(&GetControl<QWidget>(window, strName), Qt::LeftButton);
}

/// The names of the controls that Tab reaches, from the one that has the focus on, once round.
inline QStringList WalkTabOrder(QWidget& window) {
    QStringList names;
    for (const QWidget* const first = window.focusWidget();;) {
        names << window.focusWidget()->objectName();
        QTest::keyClick(window.focusWidget(), Qt::Key_Tab);
        if (window.focusWidget() == first || names.size() > 100)
            return names;
    }
}

} // namespace cellora
