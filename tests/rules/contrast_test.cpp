#include "rules/contrast.h"

#include <gtest/gtest.h>

#include "core/settings.h"
#include "store/settings.h"
#include "store/system_files.h"

namespace cellora {
namespace {

TEST(Contrast, IsThatOfTheEye) {
    EXPECT_NEAR(GetContrast(lngColorBlack, lngColorWhite), 21, 0.001);
    EXPECT_NEAR(GetContrast(lngColorBlue, lngColorRed), 2.149, 0.001);
    EXPECT_NEAR(GetContrast(MakeColor(8, 10, 12), MakeColor(119, 119, 119)), 4.4, 0.05);
}

TEST(Contrast, OnAnyColorThereIsAnInkThatReadsAndOneThatDoesNot) {
    constexpr Color lngColorAmber = MakeColor(255, 165, 0);
    for (int n = 0; n < 9 * 9 * 9; ++n) {
        const Color lngBehind = MakeColor(n % 9 * 255 / 8, n / 9 % 9 * 255 / 8, n / 81 * 255 / 8);
        const Color lngInk = ChooseInk(lngBehind);
        EXPECT_GE(GetContrast(lngInk, lngBehind), 4.5) << lngBehind;
        EXPECT_GE(GetContrast(lngInk, Tint(lngColorAmber, lngBehind, lngInk)), 4.5) << lngBehind;
        EXPECT_GE(GetContrast(MakeSeen(lngColorAmber, lngBehind), lngBehind), 3) << lngBehind;
        EXPECT_LE(GetContrast(Conceal(lngBehind), lngBehind), 1.06) << lngBehind;
    }
    EXPECT_EQ(Conceal(lngColorWhite), lngColorInactiveCaptionText);
    EXPECT_EQ(Conceal(MakeColor(247, 240, 221)), MakeColor(247, 242, 229));
    EXPECT_EQ(MakeSeen(lngColorAmber, lngColorBlack), lngColorAmber);
    EXPECT_NE(Tint(lngColorAmber, lngColorWhite, lngColorBlue), lngColorWhite);
}

TEST(Contrast, OfTheColorsAsShippedIsEnoughEverywhere) {
    SystemFiles files;
    const Colors colors = LoadSettings(files, CELLORA_ASSETS "/cl.ini").colors;
    for (const ColorSlot behind : {lngColorGridBackground, lngColorGridX, lngColorIncorrectCell}) {
        for (const ColorSlot text : {lngColorFontUser, lngColorFontComputer})
            EXPECT_GE(GetContrast(colors[text], colors[behind]), 4.5) << text << " on " << behind;
        for (const ColorSlot line : {lngColorGridLines, lngColorGridCursor})
            EXPECT_GE(GetContrast(colors[line], colors[behind]), 3) << line << " on " << behind;
    }
}

} // namespace
} // namespace cellora
