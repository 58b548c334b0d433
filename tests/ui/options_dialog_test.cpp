#include "ui/frmOptions.h"

#include <QApplication>
#include <QCheckBox>
#include <QColorDialog>
#include <QFrame>
#include <QPushButton>
#include <QTabWidget>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include "store/settings.h"
#include "tests/support/clipping.h"
#include "tests/support/scripted_desktop.h"
#include "tests/support/temporary_folder.h"

namespace cellora {
namespace {

constexpr Color lngOrange = MakeColor(255, 128, 0);
constexpr Color lngGreen = MakeColor(0, 200, 0);

class OptionsDialogTest : public testing::Test {
protected:
    OptionsDialogTest() {
        game.strProgramFolder = folder.Path();
        ApplyOptions(game, {.lngColors = {1, 2, 3, 4, 5, 6, 7, 8}, .blnDisappearingCursor = true});
        folder.WriteBytes("cl.ini", "");
    }

    frmOptions& Open() {
        form = std::make_unique<frmOptions>(game, nullptr);
        QObject::connect(form.get(), &Form::gameChanged, [this] { ++intChanges; });
        form->show();
        return *form;
    }

    QPushButton* Button(const char* strName) {
        return form->findChild<QPushButton*>(QLatin1String(strName));
    }

    void Click(const char* strName) { Button(strName)->click(); }

    /// Presses a colour button and answers the colour dialog; no colour cancels it.
    void Pick(ColorSlot slot, std::optional<Color> lngColor) {
        QTimer::singleShot(0, [lngColor] {
            auto* const cdg = qobject_cast<QColorDialog*>(QApplication::activeModalWidget());
            ASSERT_TRUE(cdg);
            EXPECT_EQ(cdg->windowTitle(), QStringLiteral("Select Color"));
            EXPECT_EQ(cdg->currentColor(), QColor(Qt::white));
            if (!lngColor)
                return cdg->reject();
            cdg->setCurrentColor(QColor(*lngColor & 0xFF, *lngColor >> 8 & 0xFF, *lngColor >> 16));
            cdg->accept();
        });
        Click(qPrintable(QStringLiteral("cmdColor%1").arg(static_cast<int>(slot))));
    }

    Color SwatchColor(const char* strName) {
        const QColor color =
            form->findChild<QFrame*>(QLatin1String(strName))->palette().window().color();
        return MakeColor(color.red(), color.green(), color.blue());
    }

    bool CanApply() { return Button("cmdApply")->isEnabled(); }

    TemporaryFolder folder;
    ScriptedDesktop desktop;
    Game game{desktop};
    std::unique_ptr<frmOptions> form;
    int intChanges = 0;
};

TEST_F(OptionsDialogTest, OpensOnScreenWithTheColorsInUse) {
    desktop.pointer = MousePointer::Hourglass;
    Open();
    EXPECT_EQ(form->windowTitle(), QStringLiteral("Options"));
    EXPECT_EQ(form->size(), QSize(361, 241));
    auto* const tab = form->findChild<QTabWidget*>();
    EXPECT_EQ(tab->tabText(tab->currentIndex()), QStringLiteral("Screen"));
    const char* const aSwatches[] = {
        "picGridBackground", "picScreenBackground", "picGridLines",         "picFontUser",
        "picFontComputer",   "picGridCursor",       "picGridIncorrectCell", "picGridX"};
    for (int i = 0; i < 8; ++i)
        EXPECT_EQ(SwatchColor(aSwatches[i]), i + 1) << aSwatches[i];
    EXPECT_TRUE(form->findChild<QCheckBox*>()->isChecked());
    EXPECT_FALSE(CanApply());
    EXPECT_EQ(desktop.pointer, MousePointer::Default);
}

TEST_F(OptionsDialogTest, ApplyIsEnabledByAPickAndByAClickOnTheBoxOnly) {
    Open();
    Pick(ColorSlot::GridX, std::nullopt);
    EXPECT_FALSE(CanApply());
    EXPECT_EQ(SwatchColor("picGridX"), 8);

    Pick(ColorSlot::GridX, 8);
    EXPECT_TRUE(CanApply());
    Click("cmdApply");
    EXPECT_FALSE(CanApply());
    EXPECT_TRUE(form->isVisible());

    form->findChild<QTabWidget*>()->setCurrentIndex(2);
    auto* const chkCursor = form->findChild<QCheckBox*>();
    QTest::mouseClick(chkCursor, Qt::LeftButton, {}, {8, chkCursor->height() / 2});
    QTest::mouseClick(chkCursor, Qt::LeftButton, {}, {8, chkCursor->height() / 2});
    EXPECT_TRUE(chkCursor->isChecked());
    EXPECT_TRUE(CanApply());
}

TEST_F(OptionsDialogTest, CancelKeepsWhatAnEarlierApplyDid) {
    Open();
    Pick(ColorSlot::FontUser, lngOrange);
    EXPECT_EQ(game.colors.lngColorFontUser, 4);
    Click("cmdApply");
    Pick(ColorSlot::FontUser, lngGreen);
    const std::string strSettings = folder.ReadBytes("cl.ini");
    QTest::keyClick(form.get(), Qt::Key_Escape);
    EXPECT_FALSE(form->isVisible());
    EXPECT_EQ(game.colors.lngColorFontUser, lngOrange);
    EXPECT_EQ(ReadColor(ColorKey::FontUser, folder.Path("cl.ini")), lngOrange);
    EXPECT_EQ(folder.ReadBytes("cl.ini"), strSettings);
    EXPECT_EQ(intChanges, 1);

    Open();
    EXPECT_EQ(SwatchColor("picFontUser"), lngOrange);
    EXPECT_FALSE(CanApply());
}

TEST_F(OptionsDialogTest, EnterAppliesEvenWithoutAChange) {
    Open();
    QTest::keyClick(form.get(), Qt::Key_Return);
    EXPECT_FALSE(form->isVisible());
    EXPECT_EQ(intChanges, 1);
    EXPECT_EQ(folder.ReadBytes("cl.ini"),
              "[color]\r\nscreenbackground=2\r\ngridbackground=1\r\ngridlines=3\r\ngridx=8\r\n"
              "gridcursor=6\r\nfontuser=4\r\nfontcomputer=5\r\ngridincorrectcell=7\r\n"
              "[view]\r\ncursor=1\r\n");
}

TEST_F(OptionsDialogTest, EnterPressesTheButtonThatHasTheFocus) {
    Open();
    ASSERT_TRUE(QTest::qWaitForWindowActive(form.get()));
    Button("cmdCancel")->setFocus();
    QTest::keyClick(Button("cmdCancel"), Qt::Key_Return);
    EXPECT_FALSE(form->isVisible());
    EXPECT_EQ(folder.ReadBytes("cl.ini"), "");
}

TEST_F(OptionsDialogTest, LabelsLeadToTheirButtonsAndHelpOpensTheInstructions) {
    Open();
    ASSERT_TRUE(QTest::qWaitForWindowActive(form.get()));
    form->findChild<QTabWidget*>()->setCurrentIndex(1);
    QTest::keyClick(form.get(), Qt::Key_I, Qt::AltModifier);
    EXPECT_TRUE(Button("cmdColor6")->hasFocus());
    EXPECT_EQ(Button("cmdColor6")->toolTip(),
              QStringLiteral("Edit the color for incorrect cells..."));
    EXPECT_EQ(Button("cmdColor6")->accessibleName(),
              QStringLiteral("Edit the color for incorrect cells"));
    Click("cmdHelp");
    EXPECT_EQ(desktop.windows, std::vector{ModalWindow::frmHelp});
    EXPECT_TRUE(form->isVisible());
}

TEST_F(OptionsDialogTest, NoTextIsClippedOnAnyTab) {
    Open();
    for (int intTab = 0; intTab < 4; ++intTab) {
        form->findChild<QTabWidget*>()->setCurrentIndex(intTab);
        EXPECT_EQ(DescribeClippedTexts(*form), "") << intTab;
    }
}

} // namespace
} // namespace cellora
