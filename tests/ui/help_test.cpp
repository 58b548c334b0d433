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

TEST(Instructions, PagesFitAndALongerOneScrollsByPageKeysFromAnywhere) {
    const TemporaryFolder folder;
    IdleDesktop desktop;
    SystemFiles files;
    Game game(desktop, files);
    game.strProgramFolder = folder.Path();
    frmHelp form(game, nullptr);
    form.show();
    auto& tab = *form.findChild<QTabWidget*>();
    const QSize size = tab.size();
    for (int i = 0; i < tab.count(); ++i) {
        SCOPED_TRACE(tab.tabText(i).toStdString());
        form.ShowTab(i);
        const QScrollBar& bar =
            *qobject_cast<QScrollArea*>(tab.currentWidget())->verticalScrollBar();
        tab.resize(size);
        QApplication::processEvents();
        EXPECT_EQ(bar.maximum(), 0);
        tab.resize(size.width(), size.height() / 2);
        QApplication::processEvents();
        QTest::keyClick(form.focusWidget(), Qt::Key_PageDown);
        EXPECT_GT(bar.value(), 0);
        QTest::keyClick(form.focusWidget(), Qt::Key_PageUp);
        EXPECT_EQ(bar.value(), 0);
    }
}

} // namespace
} // namespace cellora
