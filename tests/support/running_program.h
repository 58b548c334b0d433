#pragma once

#include <deque>
#include <functional>
#include <stdexcept>

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QElapsedTimer>
#include <QFile>
#include <QLabel>
#include <QMenu>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QToolBar>
#include <QWindow>

#include <gtest/gtest.h>

#include "tests/support/controls.h"
#include "tests/support/temporary_folder.h"
#include "ui/board_view.h"
#include "ui/number_selector.h"
#include "ui/start.h"

namespace cellora {

/// Waits until the condition holds, handling events; false after five seconds.
template <typename Condition>
bool WaitFor(Condition fnCondition) {
    return QTest::qWaitFor(fnCondition, 5000);
}

/// A timer's tick, without waiting for it.
inline void Tick(QTimer& timer) {
    QMetaObject::invokeMethod(&timer, "timeout");
}

/// What is to be done in the modal windows to come, one step for each, in their order. A window
/// that stays open without a step fails the test and is closed, so that nothing hangs.
class ModalScript final : public QObject {
public:
    using Step = std::function<void(QWidget&)>;

    ModalScript() {
        connect(&tmrPoll_, &QTimer::timeout, this, [this] { Poll(); });
        tmrPoll_.setSingleShot(true);
        tmrPoll_.start(intPollMilliseconds);
    }

    ~ModalScript() override { EXPECT_TRUE(steps_.empty()) << "a window did not open"; }

    void Then(Step fnStep) { steps_.push_back(std::move(fnStep)); }

    /// Presses a button of the next message box, whose title must be the given one.
    void ThenPress(const char* strTitle, QMessageBox::StandardButton button) {
        Then([strTitle, button](QWidget& window) {
            auto* const box = qobject_cast<QMessageBox*>(&window);
            ASSERT_TRUE(box) << window.objectName().toStdString();
            EXPECT_EQ(box->windowTitle(), QLatin1String(strTitle));
            QTest::mouseClick(box->button(button), Qt::LeftButton);
        });
    }

    bool IsDone() const { return steps_.empty(); }

private:
    static constexpr int intPollMilliseconds = 5;
    static constexpr int intPatience = 5000;

    void Poll() {
        // A step may open the next window, so the polling goes on below it.
        tmrPoll_.start(intPollMilliseconds);
        QWidget* const window = QApplication::activeModalWidget();
        // A window that is not on the screen yet may still be moved and sized under the mouse.
        if (window == nullptr || !window->isVisible() || !window->windowHandle()->isExposed())
            return;
        if (window != handled_) {
            handled_ = window;
            sinceHandled_.start();
            RunStep(*window);
        } else if (sinceHandled_.hasExpired(intPatience)) {
            ADD_FAILURE() << "left open: " << window->windowTitle().toStdString();
            window->close();
        }
    }

    void RunStep(QWidget& window) {
        if (steps_.empty())
            return;
        const Step fnStep = std::move(steps_.front());
        steps_.pop_front();
        fnStep(window);
    }

    QTimer tmrPoll_;
    std::deque<Step> steps_;
    QPointer<QWidget> handled_;
    QElapsedTimer sinceHandled_;
};

/// The settings file as shipped, with another value of "startup".
inline std::string GetShippedSettings(const std::string& strStartup = "0") {
    QFile file(QStringLiteral(":/assets/cl.ini"));
    if (!file.open(QIODevice::ReadOnly))
        throw std::runtime_error("no shipped settings");
    std::string strSettings = file.readAll().toStdString();
    return strSettings.replace(strSettings.find("startup=1"), 9, "startup=" + strStartup);
}

/// The whole program in a folder of its own, driven from outside: by the mouse and the keyboard of
/// its windows. Its random numbers always begin at the same place.
class RunningProgram {
public:
    explicit RunningProgram(const std::string& strSettings = GetShippedSettings()) {
        folder.WriteBytes("cl.ini", strSettings);
        // Windows come and go while the tests go on.
        QApplication::setQuitOnLastWindowClosed(false);
    }

    /// From the splash to the main window, without waiting.
    void Start() {
        program.Main();
        Tick(program.splash()->tmrSplash());
        Tick(program.splash()->tmrSplash2());
        Activate();
    }

    /// Gives the main window the keyboard, as a window manager does when a window closes; there
    /// need not be one here. Once is not enough: the closed window may still be losing it.
    void Activate() {
        int intSteady = 0;
        const bool blnActive = WaitFor([&] {
            if (!window().isActiveWindow()) {
                intSteady = 0;
                window().activateWindow();
            }
            return ++intSteady > 3;
        });
        if (!blnActive)
            throw std::runtime_error("the main window did not become active");
    }

    /// Start, and a new game through the dialog.
    void StartGame(int intLevel = 1) {
        Start();
        ChooseNewGame(intLevel);
    }

    /// A new game through the dialog.
    void ChooseNewGame(int intLevel) {
        modal.Then([intLevel](QWidget& dialog) {
            GetControl<QComboBox>(dialog, "cboDifficulty").setCurrentIndex(intLevel - 1);
            ClickControl(dialog, "cmdOK");
        });
        Choose("mnuNew");
        Activate();
        if (!game().blnGameActive || !WaitFor([this] { return grid().hasFocus(); }))
            throw std::runtime_error("no game was started");
    }

    /// Runs the program's own loop, which ends with its window; `fnUse` is what the player does
    /// meanwhile. When the window has not closed by then, the loop is ended with 1.
    int RunLoop(const std::function<void()>& fnUse) {
        QTimer::singleShot(0, &window(), [&] {
            fnUse();
            if (window().isVisible())
                QCoreApplication::exit(1);
        });
        return QApplication::exec();
    }

    Game& game() { return program.game(); }
    frmMain& window() { return *program.mainWindow(); }
    BoardScene& scene() { return window().scene(); }
    BoardView& grid() { return Get<BoardView>("picGrid"); }
    NumberSelectorButton& button(int n) { return Get<NumberSelector>("picButtons").picButton(n); }

    template <typename Control>
    Control& Get(const char* strName) {
        return GetControl<Control>(window(), strName);
    }

    QString GetValue(const char* strLabel) { return Get<QLabel>(strLabel).text(); }
    bool IsShown(const char* strWidget) { return Get<QWidget>(strWidget).isVisible(); }
    bool IsTicked(const char* strEntry) { return Get<QAction>(strEntry).isChecked(); }
    bool IsEnabled(const char* strEntry) { return Get<QAction>(strEntry).isEnabled(); }

    /// The toolbar's six buttons, from the left.
    std::vector<bool> GetToolbarEnabling() {
        std::vector<bool> enabled;
        for (const QAction* const action : Get<QToolBar>("tbrMain").actions()) {
            if (!action->isSeparator())
                enabled.push_back(action->isEnabled());
        }
        return enabled;
    }

    /// A menu entry chosen; a disabled one does nothing.
    void Choose(const char* strEntry) { Get<QAction>(strEntry).trigger(); }

    void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(&grid(), key, modifiers);
    }

    void Type(int intDigit, Qt::KeyboardModifiers modifiers = {}) {
        Press(static_cast<Qt::Key>(Qt::Key_0 + intDigit), modifiers);
    }

    void ClickCell(int intCell, Qt::MouseButton button = Qt::LeftButton) {
        QTest::mouseClick(grid().viewport(), button, {}, grid().GetCellRect(intCell).center());
    }

    void ClickNumber(int n, Qt::MouseButton mouseButton = Qt::LeftButton) {
        QTest::mouseClick(&button(n), mouseButton);
    }

    /// Puts the cursor on a cell and places nothing there.
    void MoveTo(int intCell) {
        while (GetRow(game().intCursorCell) != GetRow(intCell))
            Press(Qt::Key_Down);
        while (game().intCursorCell != intCell)
            Press(Qt::Key_Right);
    }

    int FindEmptyCell(int intFrom = 1) {
        int i = intFrom;
        while (game().cells[i].blnGiven || !game().cells[i].strEntry.empty())
            ++i;
        return i;
    }

    int GetSolution(int intCell) { return std::stoi(game().cells[intCell].strSolution); }
    int GetWrongDigit(int intCell) { return GetSolution(intCell) % 9 + 1; }

    /// Fills every empty cell but one with its digit: a button, then the cells that need it.
    void FillAllBut(int intLeftOut) {
        for (int n = 1; n <= 9; ++n) {
            ClickNumber(n);
            for (int i = 1; i <= intCellCount; ++i) {
                const Cell& cell = game().cells[i];
                if (i != intLeftOut && !cell.blnGiven && cell.strEntry.empty() &&
                    GetSolution(i) == n)
                    ClickCell(i);
            }
        }
    }

    /// Fills the grid, at last one cell with a digit of its own; the end of the game opens a
    /// window.
    void FinishWith(int intCell, int intDigit) {
        FillAllBut(intCell);
        MoveTo(intCell);
        Type(intDigit);
    }

    /// The colour drawn at a place of the cell that neither digit, notes nor cursor reach.
    QColor GetCellColor(int intCell) {
        const QPoint place = grid().GetCellRect(intCell).topLeft() + QPoint(7, 30);
        return grid().grab().toImage().pixelColor(place * grid().devicePixelRatioF());
    }

    QMenu& WaitForPopup(const char* strName) {
        auto& menu = Get<QMenu>(strName);
        if (!WaitFor([&menu] { return menu.isVisible(); }))
            throw std::runtime_error("the menu did not open");
        return menu;
    }

    TemporaryFolder folder;
    Program program{[this] { return folder.Path(); }, 20240229};
    ModalScript modal;
};

/// A test that uses the program.
class RunningProgramTest : public testing::Test, protected RunningProgram {};

} // namespace cellora
