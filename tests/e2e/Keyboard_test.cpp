// Everything is reached without a mouse.
#include <algorithm>
#include <vector>

#include "Input.h"
#include "ProgramTest.h"
#include "Setup.h"
#include "Wait.h"

namespace velkarix::e2e {
namespace {

class Keyboard : public ProgramTest {
  protected:
    Keyboard() {
        Start();
        BringToFront(Running().Main());
    }
    // Presses Tab, and gives what has the focus then.
    std::string Tab(std::initializer_list<WORD> held = {}) {
        const Window before = FocusOf(Running().Main().Thread());
        PressKey(VK_TAB, held);
        WaitUntil([&] { return FocusOf(Running().Main().Thread()) != before; });
        return Running().Focus();
    }
    void FocusList() {
        SelectRow("SampleIdle.exe");
        ASSERT_TRUE(WaitUntil([this] { return Running().Focus() == "lstvProcess"; }));
    }
};

// In the order of the form, beginning behind the list; what is disabled or not chosen is left out.
std::vector<std::string> TabOrder() {
    std::vector<std::string> names = {"optFilter(1)",       "cmdAdd",       "cmdKill",
                                      "cmdViewInformation", "cmdRefresh",   "cmdDelete",
                                      "cmdReport",          "cmdOpen",      "lblHelp",
                                      "lblAbout",           "cmdProcess",   "cmdIE",
                                      "cmdStartup",         "cmdAddremove", "cmdOptions",
                                      "cmdUtilities",       "lstvProcess"};
    if (!ListsFolders()) std::erase(names, "cmdOpen");
    return names;
}

TEST_F(Keyboard, TabWalksTheControlsInTheOrderOfTheForm) {
    FocusList();
    std::vector<std::string> walked;
    for (std::size_t i = 0; i < TabOrder().size(); ++i) walked.push_back(Tab());
    EXPECT_EQ(walked, TabOrder());
}

TEST_F(Keyboard, ShiftTabWalksBack) {
    FocusList();
    std::vector<std::string> walked;
    std::vector<std::string> expected = TabOrder();
    for (std::size_t i = 0; i < expected.size(); ++i) {
        walked.insert(walked.begin(), Tab({VK_SHIFT}));
    }
    std::ranges::rotate(expected, expected.end() - 1);
    EXPECT_EQ(walked, expected);
}

TEST_F(Keyboard, SpaceAndEnterPressTheFocusedButton) {
    FocusList();
    while (Tab() != "cmdIE") {
        ASSERT_NE(Running().Focus(), "lstvProcess") << "the button isn't reached";
    }
    PressKey(VK_SPACE);
    EXPECT_TRUE(WaitUntil([this] { return Running().Main().Find("frmIE").Visible(); }));
    ASSERT_TRUE(WaitUntil([this] { return !Running().Focus().empty(); }));
    while (Running().Focus() != "cmdStartup") Tab();
    PressKey(VK_RETURN);
    EXPECT_TRUE(WaitUntil([this] { return Running().Main().Find("frmStartup").Visible(); }));
}

TEST_F(Keyboard, TheArrowKeysChooseTheFilter) {
    FocusList();
    ASSERT_EQ(Tab(), "optFilter(1)");
    PressKey(VK_DOWN);
    EXPECT_TRUE(WaitUntil([this] { return Running().Control("optFilter(0)").Checked(); }));
    EXPECT_TRUE(WaitUntil([this] { return List().Find("services.exe").has_value(); }));
    EXPECT_EQ(Running().Focus(), "optFilter(0)");
}

TEST_F(Keyboard, EnterOnTheAboutLinkOpensTheBox) {
    FocusList();
    while (Tab() != "lblAbout") {
        ASSERT_NE(Running().Focus(), "lstvProcess") << "the link isn't reached";
    }
    PressKey(VK_RETURN);
    const Window about = Running().Dialog("frmAbout");
    ASSERT_TRUE(about);
    EXPECT_TRUE(about.Find("cmdOk").Click());
}

}  // namespace
}  // namespace velkarix::e2e
