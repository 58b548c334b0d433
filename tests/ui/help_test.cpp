#include <QtTest>
#include <QtWidgets>

#include <gtest/gtest.h>

#include <memory>

#include "core/modCellora.h"
#include "store/system_files.h"
#include "tests/support/idle_desktop.h"
#include "tests/support/temporary_folder.h"
#include "ui/dialogs/frmHelp.h"

namespace cellora {
namespace {

class Instructions : public testing::Test {
protected:
    Instructions() {
        game_.strProgramFolder = folder_.Path();
        form_ = std::make_unique<frmHelp>(game_, nullptr);
        form_->show();
        tab_ = form_->findChild<QTabWidget*>();
    }

    TemporaryFolder folder_;
    IdleDesktop desktop_;
    SystemFiles files_;
    Game game_{desktop_, files_};
    std::unique_ptr<frmHelp> form_;
    QTabWidget* tab_ = nullptr;
};

TEST_F(Instructions, PagesFitAndALongerOneScrollsByPageKeysFromAnywhere) {
    const QSize size = tab_->size();
    for (int i = 0; i < tab_->count(); ++i) {
        SCOPED_TRACE(tab_->tabText(i).toStdString());
        form_->ShowTab(i);
        const QScrollBar& bar =
            *qobject_cast<QScrollArea*>(tab_->currentWidget())->verticalScrollBar();
        tab_->resize(size);
        QApplication::processEvents();
        EXPECT_EQ(bar.maximum(), 0);
        tab_->resize(size.width(), size.height() / 2);
        QApplication::processEvents();
        QTest::keyClick(form_->focusWidget(), Qt::Key_PageDown);
        EXPECT_GT(bar.value(), 0);
        QTest::keyClick(form_->focusWidget(), Qt::Key_PageUp);
        EXPECT_EQ(bar.value(), 0);
    }
}

TEST_F(Instructions, ControlAndTabTurnThePagesRoundBothWaysFromAnywhere) {
    for (const char* const strName : {"qt_tabwidget_tabbar", "cmdOK", "chkStartup"}) {
        SCOPED_TRACE(strName);
        auto* const widget = form_->findChild<QWidget*>(QLatin1String(strName));
        widget->setFocus();
        form_->ShowTab(0);
        // Servers differ in the key they send with Shift.
        QTest::keyClick(widget, Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier);
        EXPECT_EQ(tab_->currentIndex(), 3);
        QTest::keyClick(widget, Qt::Key_Tab, Qt::ControlModifier | Qt::ShiftModifier);
        EXPECT_EQ(tab_->currentIndex(), 2);
        QTest::keyClick(widget, Qt::Key_Tab, Qt::ControlModifier);
        QTest::keyClick(widget, Qt::Key_Tab, Qt::ControlModifier);
        EXPECT_EQ(tab_->currentIndex(), 0);
    }
}

} // namespace
} // namespace cellora
