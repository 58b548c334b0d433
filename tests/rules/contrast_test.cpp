#include "rules/contrast.h"

#include <gtest/gtest.h>

namespace cellora {
namespace {

TEST(Contrast, IsThatOfTheEye) {
    EXPECT_NEAR(GetContrast(lngColorBlack, lngColorWhite), 21, 0.001);
    EXPECT_NEAR(GetContrast(lngColorBlue, lngColorRed), 2.149, 0.001);
    EXPECT_NEAR(GetContrast(MakeColor(8, 10, 12), MakeColor(119, 119, 119)), 4.4, 0.05);
}

TEST(Contrast, OnAnyColorThereIsAnInkThatReadsAndOneThatDoesNot) {
    for (int n = 0; n < 9 * 9 * 9; ++n) {
        const Color lngBehind = MakeColor(n % 9 * 255 / 8, n / 9 % 9 * 255 / 8, n / 81 * 255 / 8);
        EXPECT_GE(GetContrast(ChooseInk(lngBehind), lngBehind), 4.5) << lngBehind;
        EXPECT_LE(GetContrast(Conceal(lngBehind), lngBehind), 1.2) << lngBehind;
    }
    for (const Color lngLight : {lngColorWhite, lngColorLightYellow})
        EXPECT_EQ(Conceal(lngLight), lngColorInactiveCaptionText);
}

} // namespace
} // namespace cellora
