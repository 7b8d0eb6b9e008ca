#include "forms/win32/PendingRefreshes.h"

#include <gtest/gtest.h>

#include <functional>

namespace velkarix {
namespace {

struct CountingWindow : Refreshable {
    void Refresh() override {
        ++refreshed;
        if (inRefresh) inRefresh();
    }
    int refreshed = 0;
    std::function<void()> inRefresh;
};

TEST(PendingRefreshesTest, ManyChangesAreOneRefresh) {
    PendingRefreshes pending;
    CountingWindow window;
    for (int i = 0; i < 1000; ++i) pending.Add(window);
    pending.Run();
    EXPECT_EQ(window.refreshed, 1);
}

TEST(PendingRefreshesTest, WindowIsRefreshedAgainOnlyAfterAnotherChange) {
    PendingRefreshes pending;
    CountingWindow window;
    pending.Add(window);
    pending.Run();
    pending.Run();
    EXPECT_EQ(window.refreshed, 1);
    pending.Add(window);
    pending.Run();
    EXPECT_EQ(window.refreshed, 2);
}

TEST(PendingRefreshesTest, RemovedWindowIsLeftAlone) {
    PendingRefreshes pending;
    CountingWindow window;
    CountingWindow other;
    pending.Add(window);
    pending.Add(other);
    pending.Remove(window);
    pending.Run();
    EXPECT_EQ(window.refreshed, 0);
    EXPECT_EQ(other.refreshed, 1);
}

TEST(PendingRefreshesTest, ChangeDuringARefreshIsServedInTheSameRun) {
    PendingRefreshes pending;
    CountingWindow window;
    CountingWindow other;
    window.inRefresh = [&] { pending.Add(other); };
    pending.Add(window);
    pending.Run();
    EXPECT_EQ(other.refreshed, 1);
}

TEST(PendingRefreshesTest, RunInsideARunStartsNoRefreshInsideAnother) {
    PendingRefreshes pending;
    CountingWindow window;
    CountingWindow other;
    window.inRefresh = [&] {
        pending.Add(other);
        pending.Run();
        EXPECT_EQ(other.refreshed, 0);
    };
    pending.Add(window);
    pending.Run();
    EXPECT_EQ(other.refreshed, 1);
}

}  // namespace
}  // namespace velkarix
