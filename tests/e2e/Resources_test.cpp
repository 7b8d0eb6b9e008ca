// However long the program runs, it holds no more of the system's objects.
#include <iterator>

#include "BrowserItems.h"
#include "ObjectCounts.h"
#include "ProgramTest.h"
#include "Reports.h"
#include "Wait.h"

namespace velkarix::e2e {
namespace {

class Resources : public ProgramTest {
  protected:
    // What is made once and kept is there then; one brush comes with the first scan that takes
    // long, which on a fast machine may be none of the first.
    void StartAndGoRound() {
        Start();
        Switch(30);
    }
    ObjectCounts Count() { return RestingObjects(Running()); }
    void ExpectNoMoreThan(const ObjectCounts& before) { ExpectNoMoreObjects(Running(), before); }
    // Goes round the pages; ends on the first one.
    void Switch(int times) {
        static const char* const buttons[] = {"cmdIE",      "cmdStartup",   "cmdAddremove",
                                              "cmdOptions", "cmdUtilities", "cmdProcess"};
        for (int i = 0; i < times; ++i) {
            ASSERT_TRUE(Running().Press(buttons[static_cast<std::size_t>(i) % std::size(buttons)]));
        }
    }
};

TEST_F(Resources, AThousandPageSwitchesLeaveTheCountsWhereTheyWere) {
    Start();
    Switch(102);
    const ObjectCounts before = Count();
    Switch(1002);
    ExpectNoMoreThan(before);
}

TEST_F(Resources, AHundredDialogsLeaveTheCountsWhereTheyWere) {
    StartAndGoRound();
    const auto openAndClose = [this](int times) {
        for (int i = 0; i < times; ++i) {
            ASSERT_TRUE(Running().Control("lblAbout").Click());
            const Window about = Running().Dialog("frmAbout");
            ASSERT_TRUE(about.Find("cmdOk").Click());
            ASSERT_TRUE(WaitUntil([&] { return !about && Running().Main().Enabled(); }));
        }
    };
    openAndClose(10);
    const ObjectCounts before = Count();
    openAndClose(100);
    ExpectNoMoreThan(before);
}

TEST_F(Resources, AHundredRefreshesLeaveTheCountsWhereTheyWere) {
    StartAndGoRound();
    const auto refresh = [this](int times) {
        for (int i = 0; i < times; ++i) ASSERT_TRUE(Running().Press("cmdRefresh"));
    };
    refresh(10);
    const ObjectCounts before = Count();
    refresh(100);
    ExpectNoMoreThan(before);
}

TEST_F(Resources, ListsOfTheBrowserThatAreFilledAgainLeaveTheCountsWhereTheyWere) {
    StartAndGoRound();
    ASSERT_TRUE(Running().Press("cmdIE"));
    const auto refresh = [this](int times) {
        for (int i = 0; i < times; ++i) {
            for (const BrowserList* each : BrowserLists) {
                ASSERT_TRUE(Running().Press(each->strip));
                ASSERT_TRUE(Running().Press(each->refresh));
            }
        }
    };
    refresh(3);
    const ObjectCounts before = Count();
    refresh(20);
    ExpectNoMoreThan(before);
}

// Each loads and unloads the four pages that it tells of.
TEST_F(Resources, TenFullReportsLeaveTheCountsWhereTheyWere) {
    StartAndGoRound();
    ASSERT_TRUE(Running().Press("cmdOptions"));
    for (const char* box : {"chkProcess", "chkIE", "chkStartup", "chkAddremove"}) {
        ASSERT_TRUE(Running().Press(box));
    }
    const auto make = [this](int times) {
        for (int i = 0; i < times; ++i) {
            install_.Remove("Full.txt");
            ForgetOpened();
            ASSERT_TRUE(SaveReport(Running(), "cmdReport", install_.Path("Full.txt")));
            ASSERT_NE(Opened(), "");
            ASSERT_TRUE(WaitUntil([this] { return Running().Control("cmdReport").Enabled(); }));
        }
    };
    make(2);
    ObjectCounts before = Count();
    make(10);
    before.kernel += 10;  // Wine's save dialog keeps a handle for each file that it gives
    ExpectNoMoreThan(before);
}

}  // namespace
}  // namespace velkarix::e2e
