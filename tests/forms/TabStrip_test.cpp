#include "forms/TabStrip.h"

#include <gtest/gtest.h>

#include "CountingView.h"

namespace velkarix {
namespace {

class TabStripTest : public testing::Test {
  protected:
    TabStripTest() { strip.AttachView(&view); }
    ~TabStripTest() override { strip.AttachView(nullptr); }

    int clicks = 0;
    CountingView view;
    TabStrip strip{"tbTest", "Test", {"One", "Two", "Three"}, [this] { ++clicks; }};
};

TEST_F(TabStripTest, BeginsWithItsFirstTab) {
    EXPECT_EQ(strip.Selected(), 1);
    EXPECT_EQ(strip.Captions(), (std::vector<std::string>{"One", "Two", "Three"}));
}

TEST_F(TabStripTest, TellsItsViewAndNoHandlerOfATabThatTheProgramSelects) {
    strip.Select(3);
    EXPECT_EQ(strip.Selected(), 3);
    EXPECT_EQ(view.Times(Aspect::Value), 1);
    EXPECT_EQ(clicks, 0);
}

TEST_F(TabStripTest, TellsItsHandlerAndNotItsViewOfATabThatTheUserSelects) {
    strip.UserSelect(2);
    EXPECT_EQ(strip.Selected(), 2);
    EXPECT_EQ(clicks, 1);
    EXPECT_EQ(view.Times(Aspect::Value), 0);
}

TEST_F(TabStripTest, TellsItsHandlerOfAClickOnTheSelectedTabToo) {
    strip.UserSelect(1);
    EXPECT_EQ(clicks, 1);
}

TEST_F(TabStripTest, HasNoEventButTheClick) {
    EXPECT_TRUE(strip.Raise("Click"));
    EXPECT_FALSE(strip.Raise("DblClick"));
    EXPECT_EQ(clicks, 1);
}

}  // namespace
}  // namespace velkarix
