#include <QtWidgets>

#include <gtest/gtest.h>

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

#ifdef Q_OS_WIN
TEST(Look, KeysOfTheDigitRowAreDigitsWhateverTheyWrite) {
    EXPECT_EQ(GetVirtualKey({QEvent::KeyPress, Qt::Key_Eacute, {}, 3, '2', 0}), '2');
    EXPECT_EQ(GetVirtualKey({QEvent::KeyPress, Qt::Key_A, {}, 16, 'A', 0}), 0);
}
#endif

} // namespace
} // namespace cellora
