#include "platform/DrawnPicture.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <vector>

namespace velkarix {
namespace {

using Pixels = std::vector<std::uint32_t>;

TEST(DrawnPicture, APixelThatHidesBothGroundsIsOpaque) {
    EXPECT_EQ(PixelsOfDrawings({0x123456, 0x000000, 0xFFFFFF}, {0x123456, 0x000000, 0xFFFFFF}),
              (Pixels{0xFF123456, 0xFF000000, 0xFFFFFFFF}));
}

TEST(DrawnPicture, APixelThatLeavesBothGroundsIsClear) {
    EXPECT_EQ(PixelsOfDrawings({0x000000}, {0xFFFFFF}), Pixels{0});
}

TEST(DrawnPicture, WhatTheSystemLeavesInTheTopByteDoesNotCount) {
    EXPECT_EQ(PixelsOfDrawings({0xAB112233}, {0x00112233}), Pixels{0xFF112233});
}

TEST(DrawnPicture, HalfOpaqueColoursAreTakenBackToTheirFullStrength) {
    // Opacity 128 of 255: pure red leaves 128 on black, and 127 more of each channel on white.
    EXPECT_EQ(PixelsOfDrawings({0x800000}, {0xFF7F7F}), Pixels{0x80FF0000});
}

TEST(DrawnPicture, EveryOpacityComesBackWithinTheRounding) {
    for (std::uint32_t alpha = 1; alpha < 256; ++alpha) {
        const std::uint32_t black = (200 * alpha + 127) / 255;
        const std::uint32_t white = black + (255 - alpha);
        const auto pixel =
            PixelsOfDrawings({black << 16 | black}, {white << 16 | (255 - alpha) << 8 | white});
        EXPECT_EQ(pixel.front() >> 24, alpha);
        const auto red = static_cast<double>(pixel.front() >> 16 & 0xFF);
        EXPECT_NEAR(red, 200, 0.5 + 127.5 / alpha) << alpha;
        EXPECT_EQ(pixel.front() >> 8 & 0xFF, 0U) << alpha;
    }
}

TEST(DrawnPicture, AnInvertingPixelStaysVisible) {
    EXPECT_EQ(PixelsOfDrawings({0xFFFFFF}, {0x000000}), Pixels{0xFFFFFFFF});
}

}  // namespace
}  // namespace velkarix
