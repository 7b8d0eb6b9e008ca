// The frame of the browser page: eight views by a strip of buttons, four sub-views by tabs.
#include <algorithm>
#include <iterator>

#include "AskInside.h"
#include "BrowserTest.h"
#include "Input.h"
#include "TabWindow.h"
#include "Wait.h"

namespace velkarix::e2e {
namespace {

struct View {
    const char* button;
    const char* words;
    const char* frame;
    const char* caption;
    const char* list;  // that gets the focus; null: none
};

// In the order of the strip.
const View Views[] = {
    {"cmdBHO", "BHOs", "fmIE(0)", "Internext Explorer Browser Helper Objects (BHO) List",
     "lstvBHO"},
    {"cmdToolbar", "Toolbars", "fmIE(1)", "Internet Explorer Toolbar List", "lstvToolbar"},
    {"cmdButton", "Buttons", "fmIE(2)", "Internet Explorer Toolbar Buttons List", "lstvButtons"},
    {"cmdMenu", "Context Menu", "fmIE(3)", "Internet Explorer Context Menu Item List", "lstvMenu"},
    {"cmdProtocol", "Protocols", "fmIE(5)", "Explorer Protocols List", "lstvProtocol"},
    {"cmdDomain", "Domains", "fmIE(6)", "Internext Explorer Domains List", "lstvDomains"},
    {"cmdURLs", "URLs", "fmIE(4)", "Internet Explorer URLs", nullptr},
    {"cmdAdvance", "Advanced", "fmIE(7)", "Internext Explorer Advance Settings", nullptr},
};

const char* const SubViews[] = {"URL Search Hooks", "Proxy Settings", "Protocol Defaults",
                                "Security Zones"};

class BrowserFrame : public BrowserTest {
  protected:
    BrowserFrame() {
        OpenBrowser();
        BringToFront(Running().Main());
    }
    bool OnView(const std::string& frame) { return Running().Main().Find(frame).Visible(); }
    // The frames of the views that are on view.
    std::vector<std::string> Shown() {
        std::vector<std::string> frames;
        for (const View& each : Views) {
            if (OnView(each.frame)) frames.emplace_back(each.frame);
        }
        return frames;
    }
    std::vector<int> ShownSubViews() {
        std::vector<int> shown;
        for (int i = 0; i < static_cast<int>(std::size(SubViews)); ++i) {
            if (OnView("fmIEAdvanced(" + std::to_string(i) + ")")) shown.push_back(i);
        }
        return shown;
    }
    bool HasFocus(const std::string& name) {
        return WaitUntil([&] { return Running().Focus() == name; });
    }
    TabWindow OpenTabs() {
        EXPECT_TRUE(Running().Press("cmdAdvance"));
        return TabWindow(Running().Control("tbMain"));
    }
};

TEST_F(BrowserFrame, TheStripsButtonsStandInTheirOrderAndTellInWordsWhatTheyShow) {
    LONG last = 0;
    for (const View& each : Views) {
        const Window button = Running().Control(each.button);
        EXPECT_EQ(button.Text(), each.words);
        EXPECT_GT(button.Area().top, last) << each.button;
        last = button.Area().top;
    }
}

TEST_F(BrowserFrame, TheHelperObjectsAreShownFirst) {
    EXPECT_EQ(Shown(), std::vector<std::string>{"fmIE(0)"});
    EXPECT_TRUE(HasFocus("lstvBHO"));
}

TEST_F(BrowserFrame, AClickOnAButtonShowsItsViewAloneAndGivesItsListTheFocus) {
    for (std::size_t i = 1; i <= std::size(Views); ++i) {
        const View& each = Views[i % std::size(Views)];
        ClickAt(Inside(Running().Control(each.button).Area()));
        ASSERT_TRUE(WaitUntil([&] { return OnView(each.frame); })) << each.button;
        EXPECT_EQ(Shown(), std::vector<std::string>{each.frame});
        EXPECT_EQ(Running().Control(each.frame).Text(), each.caption);
        EXPECT_TRUE(each.list == nullptr || HasFocus(each.list)) << Running().Focus();
    }
}

TEST_F(BrowserFrame, TheStripWorksByTheKeyboard) {
    WORD key = VK_RETURN;
    for (const View& each : {Views[5], Views[1], Views[6], Views[7], Views[0]}) {
        ASSERT_TRUE(TabTo(each.button)) << each.button;
        key = key == VK_RETURN ? VK_SPACE : VK_RETURN;
        PressKey(key);
        EXPECT_TRUE(WaitUntil([&] { return OnView(each.frame); })) << each.button;
        EXPECT_TRUE(each.list == nullptr || HasFocus(each.list)) << Running().Focus();
    }
}

TEST_F(BrowserFrame, TheButtonOfTheViewOnViewDoesNothing) {
    const ListWindow list = Show(Toolbars);
    SelectRow(list, 2);
    Tick(list, 3);
    const std::optional<int> selected = list.Selected();
    RemoveItem(SampleItems.at(1));
    ASSERT_TRUE(Running().Press("cmdToolbar"));
    EXPECT_TRUE(list.Checked(3));
    EXPECT_EQ(list.Selected(), selected);
    EXPECT_TRUE(IsListed(SampleItems.at(1), true)) << "the list was filled again";
}

TEST_F(BrowserFrame, AViewShowsWhatWasReadWhenThePageWasEntered) {
    for (const SampleItem& item : SampleItems) RemoveItem(item);
    for (const View& each : Views) ASSERT_TRUE(Running().Press(each.button));
    for (const SampleItem& item : SampleItems) EXPECT_TRUE(IsListed(item, true)) << item;
    ASSERT_TRUE(Running().Press("cmdProcess"));
    ASSERT_TRUE(Running().Press("cmdIE"));
    for (const SampleItem& item : SampleItems) EXPECT_FALSE(IsListed(item, true)) << item;
}

TEST_F(BrowserFrame, ThePageThatIsEnteredAgainShowsTheHelperObjects) {
    Show(Domains);
    ASSERT_TRUE(Running().Press("cmdProcess"));
    ASSERT_TRUE(Running().Press("cmdIE"));
    EXPECT_EQ(Shown(), std::vector<std::string>{"fmIE(0)"});
    ASSERT_TRUE(Running().Press("cmdDomain"));
    EXPECT_EQ(Shown(), std::vector<std::string>{"fmIE(6)"});
}

TEST_F(BrowserFrame, AClickOnATabShowsItsSubViewAlone) {
    const TabWindow tabs = OpenTabs();
    EXPECT_EQ(tabs.Captions(),
              (std::vector<std::string>{std::begin(SubViews), std::end(SubViews)}));
    EXPECT_EQ(tabs.Selected(), 1);
    EXPECT_EQ(ShownSubViews(), std::vector<int>{0});
    for (const int tab : {4, 2, 3, 1}) {
        ClickAt(Inside(tabs.TabArea(tab)));
        EXPECT_TRUE(WaitUntil([&] { return ShownSubViews() == std::vector<int>{tab - 1}; })) << tab;
        EXPECT_EQ(tabs.Selected(), tab);
    }
}

TEST_F(BrowserFrame, TheTabsTurnByTheArrowKeys) {
    OpenTabs();
    ASSERT_TRUE(TabTo("tbMain"));
    for (const int tab : {2, 3, 4}) {
        PressKey(VK_RIGHT);
        EXPECT_TRUE(WaitUntil([&] { return ShownSubViews() == std::vector<int>{tab - 1}; })) << tab;
    }
    for (const int tab : {3, 2, 1}) {
        PressKey(VK_LEFT);
        EXPECT_TRUE(WaitUntil([&] { return ShownSubViews() == std::vector<int>{tab - 1}; })) << tab;
    }
    EXPECT_EQ(Running().Focus(), "tbMain");
}

TEST_F(BrowserFrame, TurningTheTabsKeepsRowsTicksAndSelection) {
    const TabWindow tabs = OpenTabs();
    const ListWindow list = Running().List("lstvHook");
    SelectRow(list, 2);
    Tick(list, 1);
    const std::optional<int> selected = list.Selected();
    RemoveItem(SampleItems.back());
    for (const int tab : {3, 1}) {
        ClickAt(Inside(tabs.TabArea(tab)));
        ASSERT_TRUE(WaitUntil([&] { return ShownSubViews() == std::vector<int>{tab - 1}; }));
    }
    EXPECT_TRUE(list.Checked(1));
    EXPECT_EQ(list.Selected(), selected);
    EXPECT_TRUE(IsListed(SampleItems.back(), true)) << "the list was filled again";
}

TEST_F(BrowserFrame, TheTabThatWasChosenStaysWhileThePageIsOnView) {
    const TabWindow tabs = OpenTabs();
    ClickAt(Inside(tabs.TabArea(4)));
    ASSERT_TRUE(WaitUntil([&] { return ShownSubViews() == std::vector<int>{3}; }));
    Show(BHOs);
    ASSERT_TRUE(Running().Press("cmdAdvance"));
    EXPECT_EQ(ShownSubViews(), std::vector<int>{3});
}

TEST_F(BrowserFrame, EveryTextFitsItsPlaceInEveryView) {
    for (const View& each : Views) {
        ASSERT_TRUE(Running().Press(each.button));
        EXPECT_EQ(AskInside(Running().Main(), CutTextsQuestion), "") << each.words;
    }
    const TabWindow tabs = OpenTabs();
    for (int tab = 2; tab <= static_cast<int>(std::size(SubViews)); ++tab) {
        ClickAt(Inside(tabs.TabArea(tab)));
        ASSERT_TRUE(WaitUntil([&] { return ShownSubViews() == std::vector<int>{tab - 1}; }));
        EXPECT_EQ(AskInside(Running().Main(), CutTextsQuestion), "") << SubViews[tab - 1];
    }
}

TEST_F(BrowserFrame, TabWalksTheControlsOfTheViewOnView) {
    ASSERT_TRUE(HasFocus("lstvBHO"));
    std::vector<std::string> walked;
    do {
        const Window before = FocusOf(Running().Main().Thread());
        PressKey(VK_TAB);
        ASSERT_TRUE(WaitUntil([&] { return FocusOf(Running().Main().Thread()) != before; }));
        walked.push_back(Running().Focus());
    } while (walked.back() != "lstvBHO" && walked.size() < 40);
    std::vector<std::string> expected = {
        "cmdDisableBHO",  "cmdBHODelete", "cmdReportBHO", "cmdRefreshBHO", "cmdEnableBHO",
        "cmdViewInfoBHO", "cmdFolderBHO", "lblHelp",      "lblAbout",      "cmdProcess",
        "cmdIE",          "cmdStartup",   "cmdAddremove", "cmdOptions",    "cmdUtilities"};
    for (const View& each : Views) expected.emplace_back(each.button);
    expected.emplace_back("lstvBHO");
    EXPECT_EQ(walked, expected);
}

}  // namespace
}  // namespace velkarix::e2e
