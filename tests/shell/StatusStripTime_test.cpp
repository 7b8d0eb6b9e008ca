// When the foot of the main window says what the program is busy with: once the user waits for it.
#include "tests/shell/StatusStripPage.h"

namespace velkarix {
namespace {

// Each place holds too little for the user to wait for; all of them together don't.
TEST_F(BusyTest, CountsTheTimeOfAllPlacesOfAListTogether) {
    AddDomain("one.example");
    AddDomain("two.example", false);
    program.Start();
    ClickPage("cmdIE");
    Click("frmIE", "cmdDomain");
    Watch();
    program.machine.clock.SetTickStep(60);
    Click("frmIE", "cmdDomainRefresh");
    EndWatch();
    EXPECT_EQ(seen, std::vector<std::string>{"Domains: two.example"});
}

TEST_F(BusyTest, CountsTheTimeOfAllListsOfAPageTogether) {
    AddDomain("one.example");
    program.machine.SetValue(Hive::CurrentUser,
                             "Software\\Microsoft\\Internet Explorer\\MenuExt\\Look it up", "",
                             "C:\\look.htm");
    program.Start();
    Watch();
    program.machine.clock.SetTickStep(60);
    ClickPage("cmdIE");
    EndWatch();
    EXPECT_EQ(seen, std::vector<std::string>{"Domains: one.example"});
}

TEST_F(BusyTest, CountsTheTimeOfAllPlacesOfStartupItemsTogether) {
    AddRunValue("Tray");
    program.machine.SetValue(Hive::LocalMachine, RunValues, "Service", "C:\\gone.exe");
    program.Start();
    Watch();
    program.machine.clock.SetTickStep(60);
    ClickPage("cmdStartup");
    EndWatch();
    EXPECT_EQ(seen, std::vector<std::string>{"Startup items: Tray"});
}

TEST_F(BusyTest, IsNotAskedToShowAnythingOnceItIsGone) {
    program.Start();
    program.application.forms.UnloadAll("frmMain");
    program.machine.clock.SetTickStep(100);
    Progress::Work work(program.application.progress, "Items");
    work.Step("item");
    program.application.unread.Note("place", "", false);
    EXPECT_TRUE(program.application.progress.Busy());
}

TEST_F(BusyTest, ShowsNothingButTheCountsAtTheEndWhereNoTimeGoesBy) {
    for (int i = 1; i < 9; ++i) AddProcess(i, "C:\\" + std::to_string(i) + ".exe", "a");
    program.Start();
    Watch();
    program.machine.clock.SetTickStep(0);
    Click("frmProcess", "cmdRefresh");
    EndWatch();
    EXPECT_TRUE(seen.empty());
    EXPECT_LE(changes, 4);  // not one for each row
}

}  // namespace
}  // namespace velkarix
