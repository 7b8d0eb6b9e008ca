// The options page: boxes of colour and boxes with a mark, by mouse and by keyboard.
#include <windows.h>
#include <commctrl.h>

#include "Input.h"
#include "ProgramTest.h"
#include "Screen.h"
#include "Wait.h"

namespace velkarix::e2e {
namespace {

class Options : public ProgramTest {
  protected:
    Options() {
        Start();
        Running().Press("cmdOptions");
        BringToFront(Running().Main());
    }
    Window Box(const std::string& name) { return Running().Control(name); }
    bool HasFocus(const std::string& name) {
        return WaitUntil([&] { return Running().Focus() == name; });
    }
    std::string Setting(const std::string& key) {
        return install_.Ini("Settings.ini", "Main", key);
    }
    bool Becomes(const std::string& key, const std::string& value) {
        return WaitUntil([&] { return Setting(key) == value; });
    }
};

int PixelsOf(const Window& window, COLORREF color) {
    return CountPixels(window.Area(), [&](COLORREF pixel) { return pixel == color; });
}

TEST_F(Options, ADoubleClickOnAColourBoxChangesItsColour) {
    constexpr COLORREF Before = RGB(128, 128, 128);
    constexpr COLORREF After = RGB(7, 128, 128);
    const Window box = Box("picDisabled");
    EXPECT_EQ(box.Text(), "Disabled Item");
    ASSERT_TRUE(WaitUntil([&] { return PixelsOf(box, Before) > 100; }));
    DoubleClickAt(Inside(box.Area()));
    const Window dialog = Running().SystemDialog();
    ASSERT_TRUE(dialog);
    EXPECT_FALSE(Running().Main().Enabled());
    PressKey('7');  // it opens with the share of red selected
    PressKey(VK_RETURN);
    ASSERT_TRUE(WaitUntil([&] { return !dialog; }));
    EXPECT_TRUE(Becomes("DisColor", std::to_string(After)));
    EXPECT_TRUE(WaitUntil([&] { return PixelsOf(box, After) > 100; }));
    EXPECT_EQ(PixelsOf(box, Before), 0);
}

TEST_F(Options, TheListOfBackupsHasNothingToTick) {
    const LRESULT style =
        SendMessageA(Box("lstvBackup").Handle(), LVM_GETEXTENDEDLISTVIEWSTYLE, 0, 0);
    EXPECT_NE(style & LVS_EX_FULLROWSELECT, 0);
    EXPECT_EQ(style & LVS_EX_CHECKBOXES, 0);
}

TEST_F(Options, ASingleClickOnAColourBoxOnlyGivesItTheFocus) {
    ClickAt(Inside(Box("picDisabled").Area()));
    ASSERT_TRUE(HasFocus("picDisabled"));
    PressKey(VK_TAB);
    EXPECT_TRUE(HasFocus("picSusDis"));
    EXPECT_TRUE(Running().Main().Enabled());
}

TEST_F(Options, SpaceAndEnterOnAColourBoxAskForItsColour) {
    ClickAt(Inside(Box("picSusDis").Area()));
    ASSERT_TRUE(HasFocus("picSusDis"));
    for (const WORD key : {WORD{VK_SPACE}, WORD{VK_RETURN}}) {
        PressKey(key);
        const Window dialog = Running().SystemDialog();
        ASSERT_TRUE(dialog) << key;
        PressKey(VK_ESCAPE);
        ASSERT_TRUE(WaitUntil([&] { return !dialog; }));
        EXPECT_TRUE(HasFocus("picSusDis"));
    }
    EXPECT_EQ(Setting("SusDisColor"), "");
}

TEST_F(Options, AMixedColourIsOfferedAgain) {
    constexpr COLORREF Mixed = RGB(7, 0, 64);
    const Window box = Box("picSusDis");
    DoubleClickAt(Inside(box.Area()));
    const Window first = Running().SystemDialog();
    ASSERT_TRUE(first);
    PressKey('7');
    PressKey(VK_TAB);
    PressKey('0');
    PressKey(VK_TAB);
    for (const WORD key : {WORD{'6'}, WORD{'4'}}) PressKey(key);
    PressKey('A', {VK_MENU});  // "Add to Custom Colors"
    PressKey(VK_RETURN);
    ASSERT_TRUE(WaitUntil([&] { return !first; }));
    DoubleClickAt(Inside(Box("picDisabled").Area()));
    const Window second = Running().SystemDialog();
    ASSERT_TRUE(second);
    EXPECT_TRUE(WaitUntil([&] { return PixelsOf(second, Mixed) > 50; }));
    PressKey(VK_ESCAPE);
    EXPECT_TRUE(WaitUntil([&] { return !second; }));
}

TEST_F(Options, ACheckBoxTurnsItsMarkAndRemembersIt) {
    const Window box = Box("chkDelete");
    ASSERT_FALSE(box.Checked());
    ClickAt(Inside(box.Area()));
    EXPECT_TRUE(Becomes("Delete", "1"));
    EXPECT_TRUE(box.Checked());
    PressKey(VK_SPACE);
    EXPECT_TRUE(Becomes("Delete", "0"));
    EXPECT_FALSE(box.Checked());
}

TEST_F(Options, AMarkThatTheProgramSetsIsNotTakenForTheUsers) {
    EXPECT_TRUE(Box("chkFontBold").Checked());
    EXPECT_EQ(Setting("FontBold"), "");
}

}  // namespace
}  // namespace velkarix::e2e
