#include "forms/PictureScaling.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <vector>

namespace velkarix {
namespace {

constexpr std::uint32_t Red = 0xFFFF0000;
constexpr std::uint32_t Blue = 0xFF0000FF;
constexpr std::uint32_t Clear = 0x00000000;

using Pixels = std::vector<std::uint32_t>;

TEST(PictureScalingTest, SameSizeIsTheSamePicture) {
    const Picture picture{2, 1, {Red, Blue}};
    EXPECT_EQ(Scaled(picture, 2, 1), picture);
}

TEST(PictureScalingTest, EmptyPictureStaysEmpty) {
    EXPECT_EQ(Scaled(Picture{}, 16, 16), Picture{});
}

TEST(PictureScalingTest, OneColourStaysThatColourInAnySize) {
    const Picture picture{3, 3, Pixels(9, Red)};
    EXPECT_EQ(Scaled(picture, 2, 2).pixels, Pixels(4, Red));
    EXPECT_EQ(Scaled(picture, 7, 5).pixels, Pixels(35, Red));
}

TEST(PictureScalingTest, ShrunkPixelIsTheMeanOfWhatItCovers) {
    const Picture picture{2, 2, {Red, Blue, Blue, Red}};
    EXPECT_EQ(Scaled(picture, 1, 1).pixels, Pixels{0xFF800080});
}

TEST(PictureScalingTest, PartlyCoveredPixelsCountByTheirPart) {
    // The first of two pixels covers all of the red and half of the blue one.
    const Picture picture{3, 1, {Red, Blue, Blue}};
    EXPECT_EQ(Scaled(picture, 2, 1).pixels, (Pixels{0xFFAA0055, Blue}));
}

TEST(PictureScalingTest, EnlargedNeighboursFlowIntoEachOther) {
    const Picture picture{2, 1, {Red, Blue}};
    EXPECT_EQ(Scaled(picture, 4, 1).pixels, (Pixels{Red, 0xFFBF0040, 0xFF4000BF, Blue}));
}

TEST(PictureScalingTest, TransparentPixelsLendNoColour) {
    const Picture picture{2, 1, {Red, Clear}};
    EXPECT_EQ(Scaled(picture, 1, 1).pixels, Pixels{0x80FF0000});
}

TEST(PictureScalingTest, RowsAndColumnsAreNotMixedUp) {
    const Picture picture{1, 2, {Red, Blue}};
    const Picture scaled = Scaled(picture, 2, 2);
    EXPECT_EQ(scaled.width, 2);
    EXPECT_EQ(scaled.height, 2);
    EXPECT_EQ(scaled.pixels, (Pixels{Red, Red, Blue, Blue}));
}

}  // namespace
}  // namespace velkarix
