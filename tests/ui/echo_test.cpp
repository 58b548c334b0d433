#include <QtTest>
#include <QtWidgets>

#include <gtest/gtest.h>

#include "ui/desktop/echo.h"

namespace cellora {
namespace {

struct TimedEvent : QMouseEvent {
    TimedEvent(Type type, Qt::MouseButton button, quint64 lngTimestamp)
        : QMouseEvent(type, {1, 1}, {1, 1}, button, button, Qt::NoModifier) {
        setTimestamp(lngTimestamp);
    }
};

TEST(MouseEcho, OnlyTheSecondClickOfADoubleClickIsKeptOutOfWhatTheFirstOneOpened) {
    const quint64 lngInterval = static_cast<quint64>(QApplication::doubleClickInterval());
    QDialog dialog;
    QPushButton button(&dialog);
    const auto TakesPress = [&](QEvent::Type type, Qt::MouseButton which, quint64 lngTimestamp) {
        TimedEvent press(type, which, lngTimestamp);
        button.setDown(false);
        QApplication::sendEvent(&button, &press);
        return button.isDown();
    };
    const MouseEcho echo(TimedEvent(QEvent::MouseButtonRelease, Qt::LeftButton, 1000));
    dialog.show();
    EXPECT_TRUE(TakesPress(QEvent::MouseButtonPress, Qt::LeftButton, 1100)) << "nothing was opened";
    dialog.hide();
    dialog.setModal(true);
    dialog.show();
    EXPECT_FALSE(TakesPress(QEvent::MouseButtonPress, Qt::LeftButton, 1100));
    EXPECT_FALSE(TakesPress(QEvent::MouseButtonDblClick, Qt::LeftButton, 1100));
    EXPECT_TRUE(TakesPress(QEvent::MouseButtonPress, Qt::LeftButton, 1000 + lngInterval));
    const MouseEcho other(TimedEvent(QEvent::MouseButtonRelease, Qt::MiddleButton, 2000));
    EXPECT_TRUE(TakesPress(QEvent::MouseButtonPress, Qt::LeftButton, 2100));
}

} // namespace
} // namespace cellora
