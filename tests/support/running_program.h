#pragma once

#include <deque>
#include <functional>
#include <stdexcept>
#include <string>

#include <unistd.h>

#include <QtTest>
#include <QtWidgets>

#include <gtest/gtest.h>

#include "core/modCellora.h"
#include "tests/support/temporary_folder.h"
#include "ui/main/frmMain.h"
#include "ui/main/start.h"

namespace cellora {

/// The control of that name and kind; a window without it fails the test.
template <typename Control>
Control& GetControl(const QWidget& window, const QString& strName) {
    auto* const control = window.findChild<Control*>(strName);
    if (control == nullptr)
        throw std::runtime_error("there is no " + strName.toStdString());
    return *control;
}

/// Tells of each modal window that opens, and closes those that are left open.
class ModalWatch final : public QObject {
public:
    explicit ModalWatch(std::function<void(QWidget&)> fnOpened) : fnOpened_(std::move(fnOpened)) {
        connect(&tmrPoll_, &QTimer::timeout, this, &ModalWatch::Poll);
        tmrPoll_.setSingleShot(true);
        tmrPoll_.start();
    }

private:
    void Poll() {
        // What is done in one window may open the next, so the polling goes on below it.
        tmrPoll_.start();
        const QPointer<QWidget> window = QApplication::activeModalWidget();
        // A window that is not on the screen yet may still be moved and sized under the mouse.
        if (window == nullptr || open_.contains(window) || !window->isVisible() ||
            !window->windowHandle()->isExposed())
            return;
        open_.append(window);
        fnOpened_(*window);
        for (int intTry = 0; window != nullptr && window->isVisible(); ++intTry) {
            if (intTry == 0)
                ADD_FAILURE() << "left open: " << window->windowTitle().toStdString();
            if (auto* const dialog = qobject_cast<QDialog*>(window); intTry > 2 && dialog)
                dialog->QDialog::done(QDialog::Rejected);
            else
                window->close();
        }
        open_.removeLast();
    }

    std::function<void(QWidget&)> fnOpened_;
    QTimer tmrPoll_;
    QList<QPointer<QWidget>> open_; ///< each over the one before
};

/// The whole program in a folder of its own, driven from outside: by the mouse and the keyboard of
/// its windows. Its random numbers always begin at the same place.
class RunningProgram {
public:
    RunningProgram() { QApplication::setQuitOnLastWindowClosed(false); }

    /// The settings file as shipped but for what is given as "KEY=VALUE"; no instructions at start
    /// unless that is told otherwise.
    void WriteSettings(const QStringList& choices = {}) {
        QFile file(QStringLiteral(":/assets/cl.ini"));
        file.open(QIODevice::ReadOnly);
        QString strSettings = QString::fromUtf8(file.readAll());
        for (const QString& strChoice : QStringList(QStringLiteral("startup=0")) + choices)
            strSettings.replace(QRegularExpression(u'\n' + strChoice.section(u'=', 0, 0) +
                                                   QLatin1String("=[^\r]*")),
                                u'\n' + strChoice);
        folder.WriteBytes("cl.ini", strSettings.toStdString());
    }

    /// Shows the splash; a program that runs already is gone without a goodbye.
    void Launch() {
        if (QApplication::activeModalWidget() != nullptr)
            throw std::runtime_error("a window is open");
        program.reset();
        program = std::make_unique<Program>([this] { return folder.Path(); }, 20240229);
        program->Main();
    }

    Game& game() { return program->game(); }
    frmMain& window() { return *program->mainWindow(); }

    template <typename Control = QWidget>
    Control& Get(const QString& strName) {
        return GetControl<Control>(window(), strName);
    }
    QAbstractScrollArea& grid() { return Get<QAbstractScrollArea>(QStringLiteral("picGrid")); }

    /// The window that has the keyboard.
    QWidget& GetActive() {
        for (QWidget* const active :
             {QApplication::activePopupWidget(), QApplication::activeModalWidget(),
              static_cast<QWidget*>(program->mainWindow()),
              QApplication::topLevelWidgets().value(0)}) {
            if (active != nullptr)
                return *active;
        }
        throw std::runtime_error("no window is active");
    }

    /// As a window manager does when a window closes; there need not be one here. Once is not
    /// enough: the closed window may still be losing it.
    void Activate() {
        constexpr int intMostRounds = 3000;
        QWidget& window = GetActive();
        for (int i = 0, intSteady = 0; i < intMostRounds && intSteady < 3; ++i) {
            intSteady = window.isActiveWindow() || window.inherits("QMenu") ? intSteady + 1 : 0;
            if (intSteady == 0)
                window.activateWindow();
            QCoreApplication::processEvents();
            if (i > 100)
                usleep(1000);
        }
    }

    /// The control that has the keyboard, or else its window.
    QWidget* GetFocus() {
        QWidget& window = GetActive();
        return window.focusWidget() != nullptr ? window.focusWidget() : &window;
    }

    void Press(QKeyCombination keys) {
        QTest::keyClick(GetFocus(), keys.key(), keys.keyboardModifiers());
    }

    QPoint GetCenter(int intCell) {
        auto* const cell = QAccessible::queryAccessibleInterface(&grid())->child(intCell - 1);
        return grid().mapFromGlobal(cell->rect().center());
    }

    void ClickCell(int intCell, Qt::MouseButton button = Qt::LeftButton) {
        QTest::mouseClick(grid().viewport(), button, {}, GetCenter(intCell));
    }

    /// Puts the cursor on a cell and places nothing there.
    void MoveTo(int intCell) {
        for (int n = 0; n < 9 && GetRow(game().intCursorCell) != GetRow(intCell); ++n)
            QTest::keyClick(&grid(), Qt::Key_Down);
        for (int n = 0; n < 9 && game().intCursorCell != intCell; ++n)
            QTest::keyClick(&grid(), Qt::Key_Right);
    }

    void Enter(int intCell, int intDigit, Qt::KeyboardModifiers modifiers = {}) {
        MoveTo(intCell);
        QTest::keyClick(&grid(), static_cast<Qt::Key>(Qt::Key_0 + intDigit), modifiers);
    }

    int GetSolution(int intCell) { return std::stoi(game().cells[intCell].strSolution); }

    TemporaryFolder folder;
    std::unique_ptr<Program> program;
};

} // namespace cellora
