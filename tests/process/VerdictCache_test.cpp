#include "process/VerdictCache.h"

#include <gtest/gtest.h>

namespace velkarix {
namespace {

TEST(VerdictCache, FindsAVerdictByItsPathExactly) {
    VerdictCache cache;
    EXPECT_FALSE(cache.FindVerdictSlot("c:\\a.exe").has_value());
    cache.Add({"key", false, true, false, "c:\\a.exe"});
    ASSERT_TRUE(cache.FindVerdictSlot("c:\\a.exe").has_value());
    EXPECT_TRUE(cache.At(*cache.FindVerdictSlot("c:\\a.exe")).IsSuspicious);
    EXPECT_FALSE(cache.FindVerdictSlot("C:\\a.exe").has_value());
    EXPECT_FALSE(cache.FindVerdictSlot("c:\\a").has_value());
}

TEST(VerdictCache, MarksEveryVerdictWithThatPathOrKey) {
    VerdictCache cache;
    cache.Add({"key", false, false, false, "c:\\a.exe"});
    cache.Add({"key", false, false, false, "c:\\b.exe"});
    cache.Add({"other", false, false, false, "c:\\c.exe"});
    cache.MarkSafeInCache("key");
    EXPECT_TRUE(cache.At(0).IsSafe);
    EXPECT_TRUE(cache.At(1).IsSafe);
    EXPECT_FALSE(cache.At(2).IsSafe);
    cache.MarkSafeInCache("c:\\c.exe");
    EXPECT_TRUE(cache.At(2).IsSafe);
    cache.ClearSafeInCache("key");
    EXPECT_FALSE(cache.At(0).IsSafe);
    EXPECT_FALSE(cache.At(1).IsSafe);
    EXPECT_TRUE(cache.At(2).IsSafe);
}

}  // namespace
}  // namespace velkarix
