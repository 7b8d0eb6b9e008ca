#include "registry/UnreadPlaces.h"

#include <gtest/gtest.h>

namespace velkarix {
namespace {

using Places = std::vector<std::string>;

TEST(UnreadPlaces, AreNoneAtFirst) {
    UnreadPlaces unread;
    unread.Note("a", "x", true);
    EXPECT_TRUE(unread.Empty());
    EXPECT_EQ(unread.Names(), Places());
}

TEST(UnreadPlaces, AreEachNamedOnceInOrder) {
    UnreadPlaces unread;
    unread.Note("b", "x", false);
    unread.Note("a", "x", false);
    unread.Note("b", "x", false);
    unread.Note("b", "y", false);
    EXPECT_FALSE(unread.Empty());
    EXPECT_EQ(unread.Names(), (Places{"a", "b"}));
}

TEST(UnreadPlaces, StayUntilEachLookThatFailedHasSucceeded) {
    UnreadPlaces unread;
    unread.Note("a", "x", false);
    unread.Note("a", "y", false);
    unread.Note("a", "z", true);
    unread.Note("b", "x", true);
    unread.Note("a", "x", true);
    EXPECT_EQ(unread.Names(), Places{"a"});
    unread.Note("a", "y", true);
    EXPECT_TRUE(unread.Empty());
}

TEST(UnreadPlaces, AreToldWhenTheyComeAndGo) {
    UnreadPlaces unread;
    int told = 0;
    unread.SetOnChange([&] { ++told; });
    unread.Note("a", "x", true);
    EXPECT_EQ(told, 0);
    unread.Note("a", "x", false);
    unread.Note("a", "x", false);
    unread.Note("a", "y", false);
    EXPECT_EQ(told, 1);
    unread.Note("a", "x", true);
    EXPECT_EQ(told, 1);
    unread.Note("a", "y", true);
    EXPECT_EQ(told, 2);
    unread.SetOnChange({});
    unread.Note("a", "x", false);
    EXPECT_EQ(told, 2);
}

}  // namespace
}  // namespace velkarix
