#include "base/RawBuffer.h"

#include <gtest/gtest.h>

#include <cstdint>

namespace velkarix {
namespace {

TEST(RawBuffer, KeepsTheFirstItemsWhenItGrows) {
    RawBuffer<std::uint32_t> buffer;
    ASSERT_TRUE(buffer.Grow(2, 0));
    buffer.Data()[0] = 7;
    buffer.Data()[1] = 8;
    ASSERT_TRUE(buffer.Grow(1000, 2));
    EXPECT_EQ(buffer.Capacity(), 1000u);
    EXPECT_EQ(buffer.Data()[0], 7u);
    EXPECT_EQ(buffer.Data()[1], 8u);
}

TEST(RawBuffer, NeverShrinks) {
    RawBuffer<char> buffer;
    ASSERT_TRUE(buffer.Grow(10, 0));
    const char* const items = buffer.Data();
    ASSERT_TRUE(buffer.Grow(5, 0));
    EXPECT_EQ(buffer.Capacity(), 10u);
    EXPECT_EQ(buffer.Data(), items);
}

TEST(RawBuffer, HasNothingAtFirst) {
    const RawBuffer<char> buffer;
    EXPECT_EQ(buffer.Capacity(), 0u);
    EXPECT_EQ(buffer.Data(), nullptr);
}

}  // namespace
}  // namespace velkarix
