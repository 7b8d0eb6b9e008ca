#include "forms/Form.h"

#include <gtest/gtest.h>

#include "CountingView.h"
#include "forms/Controls.h"

namespace velkarix {
namespace {

// Two views in one place, each with a button; F5 is the key of both buttons.
class TwoViews : public Form {
  public:
    TwoViews() : Form("pagTest", "Test", FormKind::Page) {
        SetControls({&frame, &first, &firstButton, &second, &secondButton, &beside});
        SetLayout(Row({Group(frame, Stack({Group(first, Row({Item(firstButton)})),
                                           Group(second, Row({Item(secondButton)}))})),
                       Item(beside)}));
        SetAccelerators({{Key::F5, false, "cmdFirst_Click"}, {Key::F5, false, "cmdSecond_Click"}});
        second.SetVisible(false);
    }
    void ShowSecond() {
        first.SetVisible(false);
        second.SetVisible(true);
    }

    int firstClicks = 0;
    int secondClicks = 0;
    Frame frame{"fmTest", "Test"};
    Panel first{"picFirst", "First", Panel::Look::Plain};
    Panel second{"picSecond", "Second", Panel::Look::Plain};
    Button firstButton{"cmdFirst", "First", [this] { ++firstClicks; }};
    Button secondButton{"cmdSecond", "Second", [this] { ++secondClicks; }};
    Label beside{"lblTest", "Beside"};
};

class FormTest : public testing::Test {
  protected:
    TwoViews form;
};

TEST_F(FormTest, WhatStandsInAHiddenGroupIsNotShown) {
    EXPECT_TRUE(form.firstButton.Shown());
    EXPECT_FALSE(form.secondButton.Shown());
    EXPECT_TRUE(form.secondButton.Visible());
    form.ShowSecond();
    EXPECT_FALSE(form.firstButton.Shown());
    EXPECT_TRUE(form.secondButton.Shown());
}

TEST_F(FormTest, AHiddenGroupHidesTheGroupsInItToo) {
    form.frame.SetVisible(false);
    EXPECT_FALSE(form.first.Shown());
    EXPECT_FALSE(form.firstButton.Shown());
    EXPECT_TRUE(form.beside.Shown());
    form.frame.SetVisible(true);
    EXPECT_TRUE(form.firstButton.Shown());
    EXPECT_FALSE(form.secondButton.Shown());
}

TEST_F(FormTest, AControlHiddenByItselfStaysSoInAVisibleGroup) {
    form.firstButton.SetVisible(false);
    form.frame.SetVisible(false);
    form.frame.SetVisible(true);
    EXPECT_FALSE(form.firstButton.Shown());
}

TEST_F(FormTest, TheViewsOfAllThatStandInAGroupHearThatItIsHidden) {
    CountingView inner;
    CountingView outside;
    form.firstButton.AttachView(&inner);
    form.beside.AttachView(&outside);
    form.frame.SetVisible(false);
    EXPECT_EQ(inner.Times(Aspect::Visible), 1);
    EXPECT_EQ(outside.Times(Aspect::Visible), 0);
    form.firstButton.AttachView(nullptr);
    form.beside.AttachView(nullptr);
}

TEST_F(FormTest, AKeyRunsTheHandlerOfTheControlOnView) {
    EXPECT_TRUE(form.RaiseKey(Key::F5, false));
    EXPECT_EQ(form.firstClicks, 1);
    form.ShowSecond();
    EXPECT_TRUE(form.RaiseKey(Key::F5, false));
    EXPECT_EQ(form.firstClicks, 1);
    EXPECT_EQ(form.secondClicks, 1);
}

TEST_F(FormTest, AKeyRunsNoHandlerOfADisabledControlNorOfTheOneBehindIt) {
    form.firstButton.SetEnabled(false);
    EXPECT_FALSE(form.RaiseKey(Key::F5, false));
    EXPECT_EQ(form.firstClicks + form.secondClicks, 0);
}

TEST_F(FormTest, AKeyWithCtrlIsAnotherKey) {
    EXPECT_FALSE(form.RaiseKey(Key::F5, true));
    EXPECT_EQ(form.firstClicks, 0);
}

TEST_F(FormTest, AKeyOfNothingOnViewMeansNothing) {
    form.frame.SetVisible(false);
    EXPECT_FALSE(form.RaiseKey(Key::F5, false));
    EXPECT_EQ(form.firstClicks + form.secondClicks, 0);
}

}  // namespace
}  // namespace velkarix
