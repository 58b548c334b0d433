#include <QtTest>
#include <QtWidgets>

#include <gtest/gtest.h>

#include "core/modCellora.h"
#include "store/system_files.h"
#include "tests/support/idle_desktop.h"
#include "tests/support/temporary_folder.h"
#include "ui/dialogs/frmHelp.h"

namespace cellora {
namespace {

TEST(Instructions, EveryPageFitsAndKeysTurnAndScrollThemFromAnywhere) {
    const TemporaryFolder folder;
    IdleDesktop desktop;
    SystemFiles files;
    Game game(desktop, files);
    game.strProgramFolder = folder.Path();
    frmHelp form(game, nullptr);
    form.show();
    auto& tab = *form.findChild<QTabWidget*>();
    const QSize size = tab.size();
    for (const char* const strName : {"qt_tabwidget_tabbar", "cmdOK", "chkStartup"}) {
        auto* const widget = form.findChild<QWidget*>(QLatin1String(strName));
        widget->setFocus();
        for (const int intPage : {1, 2, 3, 0}) {
            SCOPED_TRACE(testing::Message() << strName << ", page " << intPage);
            tab.resize(size);
            QTest::keyClick(widget, Qt::Key_Tab, Qt::ControlModifier);
            EXPECT_EQ(tab.currentIndex(), intPage);
            QApplication::processEvents();
            const auto& bar = *qobject_cast<QScrollArea*>(tab.currentWidget())->verticalScrollBar();
            EXPECT_EQ(bar.maximum(), 0);
            tab.resize(size.width(), size.height() / 2);
            QApplication::processEvents();
            QTest::keyClick(widget, Qt::Key_PageDown);
            EXPECT_GT(bar.value(), 0);
            QTest::keyClick(widget, Qt::Key_PageUp);
            EXPECT_EQ(bar.value(), 0);
        }
        // Servers differ in the key they send with Shift.
        QTest::keyClick(widget, Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier);
        QTest::keyClick(widget, Qt::Key_Tab, Qt::ControlModifier | Qt::ShiftModifier);
        EXPECT_EQ(tab.currentIndex(), 2);
        form.ShowTab(0);
    }
}

} // namespace
} // namespace cellora
