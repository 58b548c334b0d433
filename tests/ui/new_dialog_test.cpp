#include <functional>

#include <QComboBox>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include "tests/support/clipping.h"
#include "tests/support/controls.h"
#include "tests/support/scripted_desktop.h"
#include "ui/frmNew.h"
#include "ui/frmPause.h"

namespace cellora {

namespace {

class NewDialog : public testing::Test {
protected:
    NewDialog() {
        game.fnDoCellCount = [](Game&) {};
    }

    QComboBox& LevelBox() { return GetControl<QComboBox>(dialog, "cboDifficulty"); }

    ScriptedDesktop desktop;
    Game game{desktop};
    frmNew dialog{game, nullptr};
    QSignalSpy spyChanged{&dialog, &Form::gameChanged};
};

TEST_F(NewDialog, OffersThirtyLevelsFromTheFirstOn) {
    ShowActive(dialog);
    EXPECT_EQ(dialog.windowTitle(), QLatin1String("New Game"));
    EXPECT_EQ(dialog.size(), QSize(337, 115));
    EXPECT_EQ(LevelBox().currentText(), QLatin1String("Level 1"));
    EXPECT_EQ(LevelBox().count(), 30);
    EXPECT_EQ(LevelBox().itemText(29), QLatin1String("Level 30"));
    EXPECT_EQ(LevelBox().accessibleName(), QLatin1String("Difficulty"));
    EXPECT_FALSE(LevelBox().isEditable());
    EXPECT_EQ(desktop.pointer, MousePointer::Default);
    EXPECT_EQ(DescribeClippedTexts(dialog), "");
    EXPECT_EQ(WalkTabOrder(dialog).join(QLatin1Char(' ')),
              QLatin1String("cboDifficulty cmdOK cmdCancel cmdHelp"));
}

TEST_F(NewDialog, EnterStartsAGameOfTheChosenLevel) {
    // The program closes the window in the middle of the sequence, at about this place.
    game.fnDoCellCount = [this](Game&) { dialog.close(); };
    QTimer::singleShot(0, &dialog, [this] {
        ShowActive(dialog);
        QTest::keyClick(&LevelBox(), Qt::Key_End);
        desktop.log.clear();
        QTest::keyClick(&LevelBox(), Qt::Key_Return);
    });
    dialog.exec();

    EXPECT_EQ(game.lblLevel, "Level 30");
    EXPECT_EQ(game.lblVisibleCells, "20");
    EXPECT_TRUE(game.blnGameActive);
    EXPECT_TRUE(game.blnGameChanged);
    EXPECT_EQ(desktop.log.front(), "hourglass");
    EXPECT_EQ(desktop.log.back(), "tmr on");
    EXPECT_EQ(desktop.unloaded, std::vector{ModalWindow::frmNew});
    EXPECT_EQ(desktop.pointer, MousePointer::Hourglass);
    EXPECT_EQ(spyChanged.count(), 1);
}

TEST_F(NewDialog, ClosedOtherwiseLeavesTheGameAlone) {
    const std::function<void()> ways[] = {
        [this] { ClickControl(dialog, "cmdCancel"); },
        [this] { QTest::keyClick(&LevelBox(), Qt::Key_Escape); },
        [this] { dialog.close(); },
    };
    for (const auto& fnClose : ways) {
        ShowActive(dialog);
        EXPECT_EQ(desktop.pointer, MousePointer::Default);
        desktop.log.clear();
        fnClose();
        EXPECT_FALSE(dialog.isVisible());
        EXPECT_EQ(desktop.log, std::vector<std::string>{"hourglass"});
        EXPECT_FALSE(game.blnGameActive);
        EXPECT_EQ(spyChanged.count(), 0);
    }
}

TEST_F(NewDialog, HelpOpensOverIt) {
    ShowActive(dialog);
    ClickControl(dialog, "cmdHelp");
    // Enter belongs to the button that has the focus, not to OK.
    QTest::keyClick(&GetControl<QPushButton>(dialog, "cmdHelp"), Qt::Key_Return);
    EXPECT_EQ(desktop.windows, (std::vector{ModalWindow::frmHelp, ModalWindow::frmHelp}));
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_FALSE(game.blnGameActive);
}

TEST(PauseDialog, ClosesByItsButtonEnterAndEsc) {
    ScriptedDesktop desktop;
    Game game{desktop};
    frmPause dialog{game, nullptr};
    auto& cmdContinue = GetControl<QPushButton>(dialog, "cmdContinue");
    const std::function<void()> ways[] = {
        [&] { ClickControl(dialog, "cmdContinue"); },
        [&] { QTest::keyClick(&cmdContinue, Qt::Key_Return); },
        [&] { QTest::keyClick(&cmdContinue, Qt::Key_Escape); },
    };
    for (const auto& fnClose : ways) {
        ShowActive(dialog);
        EXPECT_EQ(DescribeClippedTexts(dialog), "");
        fnClose();
        EXPECT_FALSE(dialog.isVisible());
    }
    EXPECT_EQ(dialog.windowTitle().trimmed(), QString());
    EXPECT_EQ(cmdContinue.text(), QLatin1String("Continue"));
}

/// The style remembers the pictures of each palette, so a palette of its own for every showing
/// would fill the memory.
TEST(Look, AWindowShownAgainHasThePaletteOfTheProgram) {
    ScriptedDesktop desktop;
    Game game{desktop};
    for (int i = 0; i < 2; ++i) {
        frmNew dialog(game, nullptr);
        dialog.show();
        EXPECT_EQ(GetControl<QPushButton>(dialog, "cmdOK").palette().cacheKey(),
                  QApplication::palette().cacheKey());
    }
    EXPECT_EQ(QApplication::palette().color(QPalette::Highlight), QColor(0x2F, 0x6D, 0xB5));
}

} // namespace

} // namespace cellora
