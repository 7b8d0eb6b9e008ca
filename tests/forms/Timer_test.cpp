#include "forms/Timer.h"

#include <gtest/gtest.h>

namespace velkarix {
namespace {

TEST(Timer, TicksOnlyWhileEnabled) {
    int ticks = 0;
    Timer timer("tmrTest", 200, [&ticks] { ++ticks; });
    timer.Tick();
    EXPECT_EQ(ticks, 0);
    timer.SetEnabled(true);
    timer.Tick();
    EXPECT_EQ(ticks, 1);
    timer.SetEnabled(false);
    timer.Tick();
    EXPECT_EQ(ticks, 1);
}

TEST(Timer, TellsItsView) {
    struct : TimerView {
        void EnabledChanged() override { ++times; }
        int times = 0;
    } view;
    Timer timer("tmrTest", 200, [] {});
    timer.AttachView(&view);
    timer.SetEnabled(true);
    EXPECT_EQ(view.times, 1);
}

}  // namespace
}  // namespace velkarix
