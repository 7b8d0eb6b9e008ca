#include "forms/Form.h"

#include <gtest/gtest.h>

#include "CountingView.h"
#include "forms/Controls.h"
#include "forms/ListView.h"

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
        SetAccelerators({{{Key::F5}, "cmdFirst_Click"}, {{Key::F5}, "cmdSecond_Click"}});
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
    EXPECT_TRUE(form.RaiseKey({Key::F5}));
    EXPECT_EQ(form.firstClicks, 1);
    form.ShowSecond();
    EXPECT_TRUE(form.RaiseKey({Key::F5}));
    EXPECT_EQ(form.firstClicks, 1);
    EXPECT_EQ(form.secondClicks, 1);
}

TEST_F(FormTest, AKeyRunsNoHandlerOfADisabledControlNorOfTheOneBehindIt) {
    form.firstButton.SetEnabled(false);
    EXPECT_FALSE(form.RaiseKey({Key::F5}));
    EXPECT_EQ(form.firstClicks + form.secondClicks, 0);
}

TEST_F(FormTest, AKeyWithCtrlIsAnotherKey) {
    EXPECT_FALSE(form.RaiseKey({Key::F5, true}));
    EXPECT_EQ(form.firstClicks, 0);
}

TEST_F(FormTest, AKeyOfNothingOnViewMeansNothing) {
    form.frame.SetVisible(false);
    EXPECT_FALSE(form.RaiseKey({Key::F5}));
    EXPECT_EQ(form.firstClicks + form.secondClicks, 0);
}

class FormWithKeys : public Form {
  public:
    FormWithKeys() : Form("frmKeys", "Keys", FormKind::Main) {
        SetControls({&panel, &list, &box, &button});
        SetLayout(Column({Group(panel, Row({Item(list), Item(box)})), Item(button)}));
        SetAccelerators({{{Key::C, true}, "", nullptr, [this] { calls += "copy "; }},
                         {{Key::Delete}, "cmdTest_Click", &list},
                         {{Key::Escape}, "", &panel, [this] { calls += "close "; }}});
    }
    // What the key gives with the focus there; "no" when the form has no use for it.
    std::string Press(const KeyStroke& stroke, const Control* focus) {
        calls.clear();
        return RaiseKey(stroke, focus) ? calls : "no";
    }

    std::string calls;
    Panel panel{"picTest", "", Panel::Look::Plain};
    ListView list{"lstvTest", "Test", {"Name"}, {}};
    TextBox box{"txtTest", "Test", {}};
    Button button{"cmdTest", "Test", [this] { calls += "delete "; }};
};

TEST(FormKeys, RunACommandWithoutAControl) {
    FormWithKeys form;
    EXPECT_EQ(form.Press({Key::C, true}, nullptr), "copy ");
    EXPECT_EQ(form.Press({Key::C, true}, &form.list), "copy ");
    EXPECT_EQ(form.Press({Key::C, true, true}, &form.list), "no");
    EXPECT_EQ(form.Press({Key::C}, &form.list), "no");
}

TEST(FormKeys, LeaveToTheFocusedControlWhatItUsesItself) {
    FormWithKeys form;
    EXPECT_EQ(form.Press({Key::C, true}, &form.box), "no");
}

TEST(FormKeys, WorkOnlyWhereTheirControlHasTheFocus) {
    FormWithKeys form;
    EXPECT_EQ(form.Press({Key::Delete}, &form.list), "delete ");
    EXPECT_EQ(form.Press({Key::Delete}, &form.button), "no");
    EXPECT_EQ(form.Press({Key::Delete}, nullptr), "no");
    form.button.SetEnabled(false);
    EXPECT_EQ(form.Press({Key::Delete}, &form.list), "no");
    form.button.SetEnabled(true);
    form.button.SetVisible(false);
    EXPECT_EQ(form.Press({Key::Delete}, &form.list), "no");
}

TEST(FormKeys, WorkWhereTheirControlStandsAroundTheFocus) {
    FormWithKeys form;
    EXPECT_EQ(form.Press({Key::Escape}, &form.box), "close ");
    EXPECT_EQ(form.Press({Key::Escape}, &form.list), "close ");
    EXPECT_EQ(form.Press({Key::Escape}, &form.button), "no");
    EXPECT_EQ(form.Press({Key::Escape}, nullptr), "no");
}

}  // namespace
}  // namespace velkarix
