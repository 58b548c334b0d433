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

#ifdef Q_OS_WIN
TEST(Look, KeysOfTheDigitRowAreDigitsWhateverTheyWrite) {
    EXPECT_EQ(GetVirtualKey({QEvent::KeyPress, Qt::Key_Eacute, {}, 3, '2', 0}), '2');
    EXPECT_EQ(GetVirtualKey({QEvent::KeyPress, Qt::Key_A, {}, 16, 'A', 0}), 0);
}
#endif

} // namespace
} // namespace cellora
