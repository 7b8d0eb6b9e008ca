#include "forms/Controls.h"

#include <gtest/gtest.h>

#include "CountingView.h"

namespace velkarix {
namespace {

TEST(Button, RunsItsHandlerOnAClick) {
    int clicks = 0;
    Button button("cmdTest", "Test", [&clicks] { ++clicks; });
    EXPECT_TRUE(button.Raise("Click"));
    EXPECT_EQ(clicks, 1);
    EXPECT_FALSE(button.Raise("DblClick"));
    EXPECT_EQ(clicks, 1);
}

TEST(Button, IgnoresTheUserWhileDisabledButNotTheProgram) {
    int clicks = 0;
    Button button("cmdTest", "Test", [&clicks] { ++clicks; });
    button.SetEnabled(false);
    EXPECT_FALSE(button.Raise("Click"));
    EXPECT_EQ(clicks, 0);
    EXPECT_TRUE(button.Fire("Click"));
    EXPECT_EQ(clicks, 1);
}

TEST(Button, MayBeDestroyedByItsOwnHandler) {
    std::unique_ptr<Button> button;
    int clicks = 0;
    button = std::make_unique<Button>("cmdTest", "Test", [&] {
        button.reset();
        ++clicks;
    });
    EXPECT_TRUE(button->Raise("Click"));
    EXPECT_EQ(clicks, 1);
}

TEST(Button, HasNoToolTipUnlessItIsGivenOne) {
    Button button("cmdTest", "Test", {});
    EXPECT_EQ(button.ToolTip(), "");
    button.SetToolTip("Click to test ");
    EXPECT_EQ(button.ToolTip(), "Click to test ");
}

TEST(LinkLabel, RunsItsHandlerOnAClick) {
    int clicks = 0;
    LinkLabel link("lblTest", "Test", [&clicks] { ++clicks; });
    EXPECT_TRUE(link.Raise("Click"));
    EXPECT_EQ(clicks, 1);
}

class OptionGroupTest : public testing::Test {
  protected:
    int clicks = 0;
    OptionGroup group{"optTest", {"All", "Filtered"}, 1, [this] { ++clicks; }};
};

TEST_F(OptionGroupTest, NamesItsOptionsByTheirIndex) {
    EXPECT_EQ(group.Option(0).Name(), "optTest(0)");
    EXPECT_EQ(group.Option(1).Name(), "optTest(1)");
    EXPECT_EQ(group.Option(1).Text(), "Filtered");
}

TEST_F(OptionGroupTest, HasExactlyOneChosen) {
    EXPECT_TRUE(group.Option(1).Chosen());
    EXPECT_TRUE(group.Option(0).Raise("Click"));
    EXPECT_TRUE(group.Option(0).Chosen());
    EXPECT_FALSE(group.Option(1).Chosen());
    EXPECT_EQ(clicks, 1);
}

TEST_F(OptionGroupTest, RunsNoHandlerWhenTheProgramChooses) {
    group.Choose(0);
    EXPECT_EQ(group.Chosen(), 0);
    EXPECT_EQ(clicks, 0);
}

TEST(NamedOptions, HaveTheirOwnNamesAndCaptionsInTheirOrder) {
    OptionGroup group({{"optFirst", "First"}, {"optSecond", "Second"}, {"optThird", "Third"}}, 2,
                      {});
    EXPECT_EQ(group.Option(0).Name(), "optFirst");
    EXPECT_EQ(group.Option(0).Text(), "First");
    EXPECT_EQ(group.Option(2).Name(), "optThird");
    EXPECT_EQ(group.Option(2).Text(), "Third");
    EXPECT_EQ(group.Chosen(), 2);
}

TEST(NamedOptions, AreOneGroup) {
    int clicks = 0;
    OptionGroup group({{"optFirst", "First"}, {"optSecond", "Second"}}, 0, [&] { ++clicks; });
    EXPECT_EQ(&group.Option(0).Group(), &group.Option(1).Group());
    EXPECT_TRUE(group.Option(1).Raise("Click"));
    EXPECT_TRUE(group.Option(1).Chosen());
    EXPECT_FALSE(group.Option(0).Chosen());
    EXPECT_EQ(group.Chosen(), group.Option(1).Index());
    EXPECT_EQ(clicks, 1);
    group.Choose(0);
    EXPECT_TRUE(group.Option(0).Chosen());
    EXPECT_EQ(clicks, 1);
}

TEST(NamedOptions, TellTheirViewsOfEachChoice) {
    OptionGroup group({{"optFirst", "First"}, {"optSecond", "Second"}}, 0, {});
    CountingView first;
    CountingView second;
    group.Option(0).AttachView(&first);
    group.Option(1).AttachView(&second);
    group.Choose(1);
    EXPECT_EQ(first.Times(Aspect::Value), 1);
    EXPECT_EQ(second.Times(Aspect::Value), 1);
}

class TextBoxTest : public testing::Test {
  protected:
    TextBoxTest() { box.AttachView(&view); }
    ~TextBoxTest() override { box.AttachView(nullptr); }

    int changes = 0;
    CountingView view;
    TextBox box{"txtTest", "Test", {}, [this] { ++changes; }};
};

TEST_F(TextBoxTest, TellsItsViewOfTheProgramsTextAlone) {
    box.TakeInput("typed");
    EXPECT_EQ(box.Value(), "typed");
    EXPECT_EQ(view.Times(Aspect::Value), 0);
    box.SetValue("set");
    EXPECT_EQ(box.Value(), "set");
    EXPECT_EQ(view.Times(Aspect::Value), 1);
}

TEST_F(TextBoxTest, TellsItsHandlerOfEachChangeWhoeverMakesIt) {
    box.TakeInput("typed");
    EXPECT_EQ(changes, 1);
    box.SetValue("set");
    EXPECT_EQ(changes, 2);
}

TEST_F(TextBoxTest, AValueThatItHoldsAlreadyIsNoChange) {
    box.SetValue("same");
    box.SetValue("same");
    box.TakeInput("same");
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(view.Times(Aspect::Value), 1);
}

TEST_F(TextBoxTest, ItsHandlerSeesTheNewValue) {
    std::string seen;
    TextBox* self = nullptr;
    TextBox watched("txtTest", "Test", {}, [&] { seen = self->Value(); });
    self = &watched;
    watched.TakeInput("new");
    EXPECT_EQ(seen, "new");
}

TEST_F(TextBoxTest, KeepsAValueWithANulWhole) {
    const std::string value("a\0b", 3);
    box.SetValue(value);
    EXPECT_EQ(box.Value(), value);
}

TEST(CheckBox, TurnsItsMarkRoundBeforeItsHandlerRuns) {
    bool seen = false;
    CheckBox* self = nullptr;
    CheckBox box("chkTest", "Test", [&] { seen = self->Checked(); });
    self = &box;
    EXPECT_TRUE(box.Raise("Click"));
    EXPECT_TRUE(seen);
    EXPECT_TRUE(box.Raise("Click"));
    EXPECT_FALSE(seen);
    EXPECT_FALSE(box.Raise("DblClick"));
}

TEST(CheckBox, RunsNoHandlerWhenTheProgramChecksIt) {
    int clicks = 0;
    CountingView view;
    CheckBox box("chkTest", "Test", [&clicks] { ++clicks; });
    box.AttachView(&view);
    box.SetChecked(true);
    EXPECT_TRUE(box.Checked());
    EXPECT_EQ(clicks, 0);
    EXPECT_EQ(view.Times(Aspect::Value), 1);
    box.AttachView(nullptr);
}

TEST(ColorBox, AnswersToADoubleClickAlone) {
    int doubleClicks = 0;
    ColorBox box("picTest", "Test", [&doubleClicks] { ++doubleClicks; });
    EXPECT_FALSE(box.Raise("Click"));
    EXPECT_EQ(doubleClicks, 0);
    EXPECT_TRUE(box.Raise("DblClick"));
    EXPECT_EQ(doubleClicks, 1);
}

TEST(ColorBox, TellsItsViewOfANewColour) {
    CountingView view;
    ColorBox box("picTest", "Test", {});
    box.AttachView(&view);
    box.SetBoxColor(0x00FF8040);
    EXPECT_EQ(box.BoxColor(), 0x00FF8040u);
    EXPECT_EQ(view.Times(Aspect::Look), 1);
    box.AttachView(nullptr);
}

TEST(Panel, TakesNoRoomAsADrawerThatIsHidden) {
    Panel drawer("picDrawer", "", Panel::Look::Drawer);
    Panel plain("picPlain", "", Panel::Look::Plain);
    EXPECT_TRUE(drawer.TakesRoom());
    drawer.SetVisible(false);
    plain.SetVisible(false);
    EXPECT_FALSE(drawer.TakesRoom());
    EXPECT_TRUE(plain.TakesRoom());
}

TEST(TextBox, KeepsTheKeysOfCopyingAndDeletingToItself) {
    const TextBox box("txtTest", "Test", {});
    const Button button("cmdTest", "Test", {});
    for (const KeyStroke& stroke :
         {KeyStroke{Key::C, true}, KeyStroke{Key::Delete}, KeyStroke{Key::Delete, false, true}}) {
        EXPECT_TRUE(box.Uses(stroke));
        EXPECT_FALSE(button.Uses(stroke));
    }
    EXPECT_FALSE(box.Uses({Key::F5}));
    EXPECT_FALSE(box.Uses({Key::C, true, true}));
}

}  // namespace
}  // namespace velkarix
