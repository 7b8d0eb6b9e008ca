// The strip of page buttons, its keys, and what a page keeps and forgets.
#include "Input.h"
#include "ProgramTest.h"
#include "Setup.h"
#include "Wait.h"

namespace velkarix::e2e {
namespace {

struct PageEntry {
    const char* button;
    const char* text;
    const char* page;
    WORD digit;
};

const PageEntry Pages[] = {
    {"cmdProcess", "Processes", "frmProcess", '1'},
    {"cmdIE", "Internet Explorer", "frmIE", '2'},
    {"cmdStartup", "Startup", "frmStartup", '3'},
    {"cmdAddremove", "Add/Remove", "frmAddRemove", '4'},
    {"cmdOptions", "Options", "frmOptions", '5'},
    {"cmdUtilities", "Utilities", "frmUtilities", '6'},
};

class PageStrip : public ProgramTest {
  protected:
    PageStrip() { Start(); }
    bool OnView(const std::string& page) { return Running().Main().Find(page).Visible(); }
    int PagesOnView() {
        int count = 0;
        for (const PageEntry& each : Pages) count += OnView(each.page) ? 1 : 0;
        return count;
    }
};

TEST_F(PageStrip, EachButtonLeadsToItsPageAndOnlyThatOne) {
    for (const PageEntry& each : {Pages[1], Pages[2], Pages[3], Pages[4], Pages[5], Pages[0]}) {
        ASSERT_TRUE(Running().Press(each.button));
        EXPECT_TRUE(OnView(each.page)) << each.page;
        EXPECT_EQ(PagesOnView(), 1) << each.page;
    }
}

TEST_F(PageStrip, EachButtonTellsInWordsWhatItShows) {
    for (const PageEntry& each : Pages) {
        EXPECT_EQ(Running().Control(each.button).Text(), each.text);
    }
}

TEST_F(PageStrip, TheButtonsStandInTheirOrderFromTopToBottom) {
    LONG last = 0;
    for (const PageEntry& each : Pages) {
        const LONG top = Running().Control(each.button).Area().top;
        EXPECT_GT(top, last) << each.button;
        last = top;
    }
}

TEST_F(PageStrip, CtrlAndADigitLeadsToThePageOfThatNumber) {
    ASSERT_TRUE(BringToFront(Running().Main()));
    for (const PageEntry& each : {Pages[5], Pages[4], Pages[3], Pages[2], Pages[1], Pages[0]}) {
        PressKey(each.digit, {VK_CONTROL});
        EXPECT_TRUE(WaitUntil([&] { return OnView(each.page); })) << each.page;
    }
}

TEST_F(PageStrip, AClickOnTheActivePagesButtonKeepsRowsOrderAndSelection) {
    ClickAt(List().Header(0));
    ASSERT_TRUE(WaitUntil(
        [this] { return List().Find("SampleSuspect.exe") < List().Find("SampleIdle.exe"); }));
    SelectRow("SampleIdle.exe");
    const Window before = List();
    const std::vector<RowTexts> rows = List().Rows();
    const std::optional<int> selected = List().Selected();
    const Process late(SamplePath("SampleIdle.exe"));

    ASSERT_TRUE(Running().Press("cmdProcess"));
    EXPECT_EQ(List().Handle(), before.Handle());
    EXPECT_EQ(List().Rows(), rows);
    EXPECT_EQ(List().Selected(), selected);
}

TEST_F(PageStrip, LeavingThePageAndComingBackScansAfresh) {
    ClickAt(List().Header(0));
    ASSERT_TRUE(WaitUntil(
        [this] { return List().Find("SampleSuspect.exe") < List().Find("SampleIdle.exe"); }));
    const int before = List().RowCount();
    const Process late(SamplePath("SampleIdle.exe"));

    ASSERT_TRUE(Running().Press("cmdIE"));
    ASSERT_TRUE(Running().Press("cmdProcess"));
    EXPECT_EQ(List().RowCount(), before + 1);
    EXPECT_LT(RowOf("SampleIdle.exe"), RowOf("SampleSuspect.exe")) << "the order is kept";
    EXPECT_EQ(List().Selected(), 0);
}

TEST_F(PageStrip, ComingToTheProcessesGivesTheirListTheFocus) {
    ASSERT_TRUE(BringToFront(Running().Main()));
    ASSERT_TRUE(Running().Press("cmdOptions"));
    ASSERT_TRUE(Running().Press("cmdProcess"));
    EXPECT_EQ(Running().Focus(), "lstvProcess");
}

}  // namespace
}  // namespace velkarix::e2e
