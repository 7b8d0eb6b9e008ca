#include "base/Contrast.h"

#include <gtest/gtest.h>

namespace velkarix {
namespace {

constexpr Color Black = 0x000000;
constexpr Color White = 0xFFFFFF;
constexpr Color Red = 0x0000FF;
constexpr Color Blue = 0xFF0000;
constexpr Color Grey = 0x808080;
constexpr Color DarkRed = 0x000040;

TEST(Contrast, IsThatOfTheGuidelines) {
    EXPECT_NEAR(ContrastRatio(Black, White), 21.0, 0.001);
    EXPECT_NEAR(ContrastRatio(Grey, Grey), 1.0, 0.001);
    EXPECT_NEAR(ContrastRatio(Red, White), 3.998, 0.001);
    EXPECT_NEAR(ContrastRatio(Blue, White), 8.592, 0.001);
    EXPECT_NEAR(ContrastRatio(0x777777, White), 4.478, 0.001);
    EXPECT_NEAR(ContrastRatio(0x008000, White), 5.137, 0.001);
    EXPECT_NEAR(ContrastRatio(0x0A0A0A, Black), 1.061, 0.001) << "the straight part of the curve";
}

TEST(Contrast, IsTheSameBothWays) {
    EXPECT_EQ(ContrastRatio(Red, Black), ContrastRatio(Black, Red));
}

TEST(Contrast, LooksAtTheThreePartsOfAColourAlone) {
    EXPECT_EQ(ContrastRatio(Red | 0x80000000, White), ContrastRatio(Red, White));
}

struct ShownMark {
    Color mark;
    Color ground;
    TextColors shown;
};

TEST(Contrast, AMarkKeepsItsColourWhereItCanBeRead) {
    for (const ShownMark& each : {ShownMark{Red, White, {Red, White}},
                                  {Grey, White, {Grey, White}},
                                  {DarkRed, White, {DarkRed, White}},
                                  {Red, Black, {Red, Black}},
                                  {Grey, Black, {Grey, Black}}}) {
        EXPECT_EQ(MarkColors(each.mark, each.ground), each.shown)
            << each.mark << " " << each.ground;
    }
}

TEST(Contrast, AMarkThatWouldVanishIsShownReversed) {
    constexpr Color Yellow = 0x00FFFF;
    for (const ShownMark& each : {ShownMark{DarkRed, Black, {White, DarkRed}},
                                  {Blue, Black, {White, Blue}},
                                  {Yellow, White, {Black, Yellow}},
                                  {White, White, {Black, White}},
                                  {Black, Black, {White, Black}},
                                  {Grey, Grey, {Black, Grey}}}) {
        EXPECT_EQ(MarkColors(each.mark, each.ground), each.shown)
            << each.mark << " " << each.ground;
    }
}

TEST(Contrast, AMarkIsReversedBelowThreeToOne) {
    EXPECT_EQ(MarkColors(0x949494, White).text, 0x949494u);    // 3.03
    EXPECT_EQ(MarkColors(0x959595, White).ground, 0x959595u);  // 2.99
}

TEST(Contrast, WhatIsShownCanBeReadWhateverTheMarkAndTheGround) {
    for (Color mark = 0; mark <= White; mark += 0x0A1B2D) {
        for (const Color ground : {Black, White, Grey, Blue}) {
            const TextColors shown = MarkColors(mark, ground);
            EXPECT_GE(ContrastRatio(shown.text, shown.ground), 3.0) << mark << " on " << ground;
        }
    }
}

TEST(Contrast, TheDialogsOfOrdinarySchemesAreNotOfHighContrast) {
    // Those of Windows 95, 2000, XP and Vista, and the lightest.
    for (const Color face : {0xC0C0C0u, 0xC8D0D4u, 0xD8E9ECu, 0xF0F0F0u, 0xF5F5F5u}) {
        EXPECT_FALSE(IsHighContrast({Black, face})) << face;
    }
}

TEST(Contrast, LightLettersAndBlackOnesOnWhiteAreOfHighContrast) {
    constexpr Color Yellow = 0x00FFFF;
    constexpr Color Green = 0x00FF00;
    EXPECT_TRUE(IsHighContrast({White, Black}));
    EXPECT_TRUE(IsHighContrast({Black, White}));
    EXPECT_TRUE(IsHighContrast({Yellow, Black}));
    EXPECT_TRUE(IsHighContrast({Green, Black}));
    EXPECT_TRUE(IsHighContrast({White, 0x404040}));
}

}  // namespace
}  // namespace velkarix
