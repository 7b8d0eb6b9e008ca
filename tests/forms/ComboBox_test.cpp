#include "forms/ComboBox.h"

#include <gtest/gtest.h>

#include "CountingView.h"

namespace velkarix {
namespace {

class ComboBoxTest : public testing::Test {
  protected:
    ComboBoxTest() { box.AttachView(&view); }
    ~ComboBoxTest() override { box.AttachView(nullptr); }

    int clicks = 0;
    CountingView view;
    ComboBox box{"cmbTest", "Test", {"One", "Two", "Three"}, [this] { ++clicks; }};
};

TEST_F(ComboBoxTest, BeginsWithoutASelection) {
    EXPECT_EQ(box.Selected(), ComboBox::NoSelection);
    EXPECT_EQ(box.SelectedText(), "");
    EXPECT_EQ(box.Entries(), (std::vector<std::string>{"One", "Two", "Three"}));
}

TEST_F(ComboBoxTest, TellsItsViewAndNoHandlerOfAnEntryThatTheProgramSelects) {
    box.Select(2);
    EXPECT_EQ(box.SelectedText(), "Three");
    EXPECT_EQ(view.Times(Aspect::Value), 1);
    EXPECT_EQ(clicks, 0);
}

TEST_F(ComboBoxTest, SelectsAnEntryByItsText) {
    box.SelectText("Two");
    EXPECT_EQ(box.Selected(), 1);
    EXPECT_EQ(view.Times(Aspect::Value), 1);
    EXPECT_EQ(clicks, 0);
}

TEST_F(ComboBoxTest, SelectsNothingByATextThatIsNoEntry) {
    box.Select(1);
    box.SelectText("two");
    EXPECT_EQ(box.Selected(), ComboBox::NoSelection);
    EXPECT_EQ(box.SelectedText(), "");
}

TEST_F(ComboBoxTest, TellsItsHandlerAndNotItsViewOfAnEntryThatTheUserSelects) {
    box.UserSelect(0);
    EXPECT_EQ(box.SelectedText(), "One");
    EXPECT_EQ(clicks, 1);
    box.UserSelect(0);
    EXPECT_EQ(clicks, 2);
    EXPECT_EQ(view.Times(Aspect::Value), 0);
}

TEST_F(ComboBoxTest, HasNoEventButTheClick) {
    EXPECT_TRUE(box.Raise("Click"));
    EXPECT_FALSE(box.Raise("DblClick"));
    EXPECT_EQ(clicks, 1);
}

}  // namespace
}  // namespace velkarix
