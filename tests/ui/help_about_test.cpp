#include <QCheckBox>
#include <QDesktopServices>
#include <QFile>
#include <QGroupBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTest>

#include <gtest/gtest.h>

#include "store/modCommon_INI.h"
#include "store/settings.h"
#include "tests/support/clipping.h"
#include "tests/support/scripted_desktop.h"
#include "tests/support/temporary_folder.h"
#include "ui/frmAbout.h"
#include "ui/frmHelp.h"
#include "ui/link_label.h"
#include "ui/modCommon_Internet.h"

namespace cellora {
namespace {

class HelpAboutTest : public testing::Test {
protected:
    HelpAboutTest() { game.strProgramFolder = folder.Path(); }

    void WriteStartupText(const char* strText) {
        WriteINI("general", "startup", strText, folder.Path("cl.ini"));
    }

    std::string ReadStartupText() { return ReadINI("general", "startup", folder.Path("cl.ini")); }

    TemporaryFolder folder;
    ScriptedDesktop desktop;
    Game game{desktop};
};

TEST_F(HelpAboutTest, TheStartupBoxTakesTheRoundedLeadingNumber) {
    for (const auto& [strText, blnTicked] :
         {std::pair{"1", true}, {"1.4", true}, {"0", false}, {"yes", false}, {"", false}}) {
        WriteStartupText(strText);
        const frmHelp form(game, nullptr);
        EXPECT_EQ(form.findChild<QCheckBox*>()->isChecked(), blnTicked) << strText;
    }
}

TEST_F(HelpAboutTest, EveryWayOfClosingWritesTheStartupBox) {
    const auto fnPressOK = [](frmHelp& form) {
        form.findChild<QPushButton*>(QStringLiteral("cmdOK"))->click();
    };
    const auto fnPressEnter = [](frmHelp& form) { QTest::keyClick(&form, Qt::Key_Return); };
    const auto fnPressEscape = [](frmHelp& form) { QTest::keyClick(&form, Qt::Key_Escape); };
    const auto fnClose = [](frmHelp& form) { form.close(); };
    for (const std::function<void(frmHelp&)>& fnLeave :
         std::initializer_list<std::function<void(frmHelp&)>>{fnPressOK, fnPressEnter,
                                                              fnPressEscape, fnClose}) {
        WriteStartupText("0");
        frmHelp form(game, nullptr);
        form.show();
        form.findChild<QCheckBox*>()->click();
        EXPECT_EQ(ReadStartupText(), "0");
        fnLeave(form);
        EXPECT_FALSE(form.isVisible());
        EXPECT_EQ(ReadStartupText(), "1");
    }
}

TEST_F(HelpAboutTest, InstructionsOpenOnTheFirstTabUnlessAskedOtherwise) {
    frmHelp form(game, nullptr);
    auto* const tab = form.findChild<QTabWidget*>();
    EXPECT_EQ(form.windowTitle(), QStringLiteral("Cellora"));
    EXPECT_EQ(form.size(), QSize(540, 337));
    EXPECT_EQ(tab->tabText(tab->currentIndex()), QStringLiteral("Instructions"));
    form.ShowTab(1);
    EXPECT_EQ(tab->tabText(tab->currentIndex()), QStringLiteral("Controls"));
}

TEST_F(HelpAboutTest, NoTextIsClippedOnAnyPage) {
    frmHelp formHelp(game, nullptr);
    formHelp.show();
    for (int intTab = 0; intTab < 4; ++intTab) {
        formHelp.ShowTab(intTab);
        EXPECT_EQ(DescribeClippedTexts(formHelp), "") << intTab;
    }
    frmAbout formAbout(game, nullptr);
    formAbout.show();
    EXPECT_EQ(DescribeClippedTexts(formAbout), "");
}

TEST_F(HelpAboutTest, AboutSaysWhatTheProgramIs) {
    const frmAbout form(game, nullptr);
    const auto fnText = [&form](const char* strName) {
        return form.findChild<QLabel*>(QLatin1String(strName))->text();
    };
    EXPECT_EQ(form.windowTitle(), QStringLiteral("About Cellora"));
    EXPECT_EQ(form.size(), QSize(398, 326));
    EXPECT_EQ(fnText("lblVersion"), QStringLiteral("Version 1.2.5"));
    EXPECT_EQ(fnText("lblCompany"), QStringLiteral("https://www.cellora.example/"));
    EXPECT_FALSE(fnText("lblCopyright").isEmpty());
    EXPECT_EQ(form.findChild<QGroupBox*>()->title(), QStringLiteral("Information"));
    EXPECT_TRUE(form.findChild<QPlainTextEdit*>()->isReadOnly());
    EXPECT_FALSE(form.findChild<QPlainTextEdit*>()->toPlainText().isEmpty());
}

TEST_F(HelpAboutTest, EnterAndEscapeCloseTheAboutBox) {
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape}) {
        frmAbout form(game, nullptr);
        form.show();
        QTest::keyClick(&form, key);
        EXPECT_FALSE(form.isVisible());
    }
}

class Browser final : public QObject {
    Q_OBJECT

public:
    Browser() { QDesktopServices::setUrlHandler(QStringLiteral("https"), this, "Open"); }
    ~Browser() override { QDesktopServices::unsetUrlHandler(QStringLiteral("https")); }

    QList<QUrl> opened;

    Q_INVOKABLE void Open(const QUrl& url) { opened.append(url); }
};

TEST_F(HelpAboutTest, TheCompanyLineOpensTheWebSite) {
    Browser browser;
    frmAbout form(game, nullptr);
    form.show();
    auto* const lblCompany = form.findChild<LinkLabel*>(QStringLiteral("lblCompany"));
    EXPECT_EQ(lblCompany->toolTip(), QStringLiteral("Internet connection required..."));
    QTest::mouseClick(lblCompany, Qt::RightButton);
    EXPECT_TRUE(browser.opened.isEmpty());
    QTest::mouseClick(lblCompany, Qt::LeftButton);
    QTest::keyClick(lblCompany, Qt::Key_Return);
    const QUrl url(QStringLiteral("https://www.cellora.example/"));
    EXPECT_EQ(browser.opened, (QList<QUrl>{url, url}));
    EXPECT_TRUE(form.isVisible());
    EXPECT_TRUE(OpenURL(url.toString(), intShowNormal));
    EXPECT_TRUE(desktop.boxes.empty());
}

#ifndef Q_OS_WIN
/// A desktop whose programs are exactly those in the test's folder.
class SystemInfoTest : public HelpAboutTest {
protected:
    SystemInfoTest() { qputenv("PATH", folder.Path().c_str()); }
    ~SystemInfoTest() override { qputenv("PATH", strPath_); }

    void Install(const std::string& strTool) {
        QFile file(QString::fromStdString(folder.WriteBytes(
            strTool, "#!/bin/sh\necho " + strTool + " > \"" + folder.Path("started") + "\"\n")));
        file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }

    void PressSystemInfo() {
        const frmAbout form(game, nullptr);
        form.findChild<QPushButton*>(QStringLiteral("cmdSysInfo"))->click();
    }

private:
    const QByteArray strPath_ = qgetenv("PATH");
};

TEST_F(SystemInfoTest, SaysSoWhereThereIsNoTool) {
    PressSystemInfo();
    ASSERT_EQ(desktop.boxes.size(), 1U);
    EXPECT_EQ(desktop.boxes[0].strText, "System Information Is Unavailable At This Time");
    EXPECT_EQ(desktop.boxes[0].icon, MessageIcon::None);
    EXPECT_EQ(desktop.boxes[0].buttons, MessageButtons::Ok);
}

TEST_F(SystemInfoTest, StartsTheFirstToolThatIsInstalled) {
    Install("hardinfo");
    Install("gnome-control-center");
    PressSystemInfo();
    EXPECT_TRUE(QTest::qWaitFor([this] { return !folder.ReadBytes("started").empty(); }));
    EXPECT_EQ(folder.ReadBytes("started"), "gnome-control-center\n");
    EXPECT_TRUE(desktop.boxes.empty());
}
#endif

} // namespace
} // namespace cellora

#include "help_about_test.moc"
