#include "ui/qt_desktop.h"

#include <QDialogButtonBox>
#include <QLineEdit>
#include <QProxyStyle>

#include <gtest/gtest.h>

#include "tests/support/running_program.h"
#include "ui/look.h"

namespace cellora {

namespace {

class DesktopTest : public RunningProgramTest {};

void PressEnter(QWidget& window) {
    QTest::keyClick(&window, Qt::Key_Return);
}

/// The toolkit's order of buttons on another desktop.
class OtherLayout final : public QProxyStyle {
public:
    explicit OtherLayout(int intLayout)
        : QProxyStyle(QStringLiteral("Fusion")), intLayout_(intLayout) {}

    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* data) const override {
        return hint == SH_DialogButtonLayout ? intLayout_
                                             : QProxyStyle::styleHint(hint, option, widget, data);
    }

private:
    int intLayout_;
};

TEST_F(DesktopTest, EnterMeansYesOnEveryDesktop) {
    Start();
    for (const int intLayout : {QDialogButtonBox::WinLayout, QDialogButtonBox::MacLayout,
                                QDialogButtonBox::KdeLayout, QDialogButtonBox::GnomeLayout}) {
        QApplication::setStyle(new OtherLayout(intLayout));
        for (const MessageButtons buttons : {MessageButtons::YesNo, MessageButtons::YesNoCancel}) {
            modal.Then(PressEnter);
            const MessageBox box{"Save Game?", "", MessageIcon::Question, buttons};
            EXPECT_EQ(program.desktop().ShowMessageBox(box), Answer::Yes) << intLayout;
        }
    }
    ApplyLook();
}

TEST_F(DesktopTest, WindowsOverTheHourglassHaveTheArrow) {
    StartGame();
    const auto IsHourglass = [] { return QApplication::overrideCursor() != nullptr; };
    program.desktop().SetMousePointer(MousePointer::Hourglass);
    EXPECT_TRUE(IsHourglass());
    modal.Then([&](QWidget& dialog) {
        EXPECT_FALSE(IsHourglass());
        dialog.close();
    });
    EXPECT_FALSE(program.desktop().PickFile({.strFolder = folder.Path()}));
    program.desktop().SetMousePointer(MousePointer::Default);
    EXPECT_FALSE(IsHourglass());
}

/// Types a name into a file dialog and presses Enter.
ModalScript::Step TypeFile(const std::string& strFile) {
    return [strFile](QWidget& dialog) {
        auto* const edit = dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
        ASSERT_TRUE(edit);
        edit->setText(QString::fromStdString(strFile));
        PressEnter(*edit);
    };
}

TEST_F(DesktopTest, AFileIsTakenFromAFolderThatExists) {
    StartGame();
    window().showNormal();
    window().setGeometry(0, 0, 400, 300);
    const std::string strGood = folder.Path("good");
    const std::string strSettings = folder.ReadBytes("cl.ini");
    modal.Then([&](QWidget& dialog) {
        // Beside the main window, and give or take the frame, which a window first learns of on the
        // screen.
        const QPoint place = dialog.frameGeometry().center() - dialog.screen()->geometry().center();
        EXPECT_LE(place.manhattanLength(), 40);
        modal.Then([&](QWidget& box) {
            EXPECT_TRUE(qobject_cast<QMessageBox*>(&box));
            EXPECT_EQ(folder.ReadBytes("cl.ini"), strSettings);
            box.close();
            QTimer::singleShot(0, &dialog, [&] { TypeFile(strGood)(dialog); });
        });
        TypeFile(folder.Path("nowhere/bad.clp"))(dialog);
    });
    Choose("mnuSaveAs");
    EXPECT_EQ(game().strGameFile, strGood);
    EXPECT_TRUE(std::filesystem::exists(strGood));
    EXPECT_FALSE(game().blnGameChanged);
}

} // namespace

} // namespace cellora
