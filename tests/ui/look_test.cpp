#include <QtWidgets>

#include <gtest/gtest.h>

#include "tests/support/temporary_folder.h"
#include "ui/desktop/keys.h"
#include "ui/desktop/look.h"

namespace cellora {
namespace {

TEST(Look, TextsHaveTheSizeAskedFor) {
    EXPECT_EQ(QFontInfo(MakeSceneFont(24, Weight::Bold)).pixelSize(), 480);
    EXPECT_EQ(QFontInfo(MakeFont(8)).pixelSize(), 11);
}

TEST(Look, ADesktopsThemeChangesNeitherFontsNorColours) {
    QFont large;
    large.setPointSize(30);
    QWidget window;
    QLabel label(&window);
    QMenu menu;
    QApplication::setFont(large);
    QApplication::setFont(large, "QMenu");
    QApplication::setPalette(QPalette(Qt::black));
    for (const QWidget* const widget :
         {&window, qobject_cast<QWidget*>(&label), qobject_cast<QWidget*>(&menu)}) {
        EXPECT_EQ(widget->font().pixelSize(), 11) << widget->metaObject()->className();
        EXPECT_EQ(widget->palette().color(QPalette::Window), MakePalette().color(QPalette::Window));
    }
    EXPECT_EQ(QApplication::font("QMenu"), MakeFont(8));
}

#ifdef Q_OS_LINUX
TEST(Look, NothingMovesWhereTheDesktopWantsItStill) {
    const TemporaryFolder folder;
    folder.MakeFolder("gtk-3.0");
    qputenv("XDG_CONFIG_HOME", folder.Path().c_str());
    const auto Write = [&](const char* strFile, const char* strText) {
        folder.WriteBytes(strFile, strText);
        return QApplication::style()->styleHint(QStyle::SH_Widget_Animation_Duration);
    };
    EXPECT_EQ(Write("kdeglobals", "[KDE]\nAnimationDurationFactor=0.5\n"), 150);
    EXPECT_EQ(Write("kdeglobals", "[KDE]\nAnimationDurationFactor=0\n"), 0);
    EXPECT_EQ(Write("kdeglobals", ""), 150);
    EXPECT_EQ(Write("gtk-3.0/settings.ini", "[Settings]\ngtk-enable-animations=false\n"), 0);
    EXPECT_EQ(Write("gtk-3.0/settings.ini", "[Settings]\ngtk-enable-animations=1\n"), 150);
    qunsetenv("XDG_CONFIG_HOME");
}
#endif

#ifdef Q_OS_WIN
TEST(Look, KeysOfTheDigitRowAreDigitsWhateverTheyWrite) {
    EXPECT_EQ(GetVirtualKey({QEvent::KeyPress, Qt::Key_Eacute, {}, 3, '2', 0}), '2');
    EXPECT_EQ(GetVirtualKey({QEvent::KeyPress, Qt::Key_A, {}, 16, 'A', 0}), 0);
}
#endif

} // namespace
} // namespace cellora
