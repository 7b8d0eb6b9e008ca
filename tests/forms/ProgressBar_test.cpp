#include "forms/ProgressBar.h"

#include <gtest/gtest.h>

#include "CountingView.h"

namespace velkarix {
namespace {

TEST(ProgressBar, BeginsEmptyAndTellsItsViewWhatIsDone) {
    CountingView view;
    ProgressBar bar("barTest", "Test");
    bar.AttachView(&view);
    EXPECT_EQ(bar.Percent(), 0);
    bar.SetPercent(40);
    EXPECT_EQ(bar.Percent(), 40);
    EXPECT_EQ(view.Times(Aspect::Value), 1);
    EXPECT_EQ(view.Times(Aspect::Now), 0);
    bar.AttachView(nullptr);
}

TEST(ProgressBar, IsDrawnAtOnceWhereThatIsAskedFor) {
    CountingView view;
    ProgressBar bar("barTest", "Test");
    bar.ShowNow();
    bar.AttachView(&view);
    bar.ShowNow();
    EXPECT_EQ(view.Times(Aspect::Now), 1);
    bar.AttachView(nullptr);
}

}  // namespace
}  // namespace velkarix
