// The foot of the main window, on the whole program: the counts of the list on view.
#include "shell/StatusStrip.h"

#include "forms/TabStrip.h"
#include "tests/shell/StatusStripPage.h"

namespace velkarix {
namespace {

TEST_F(StatusStripTest, CountsTheRowsOfTheFirstPage) {
    AddProcess(1, "C:\\bad.exe", "a");
    AddProcess(2, "C:\\good.exe", "b");
    program.AddInstalledFile("SusProcess.vkl").Content("0cc175b9c0f1b6a831c399e269772661");
    program.Start();
    EXPECT_EQ(Status(), "2 rows, 1 suspicious");
}

TEST_F(StatusStripTest, FollowsTicksByTheUserAndByTheProgram) {
    AddProcess(1, "C:\\one.exe", "a");
    program.Start();
    ListView& list = List("frmProcess", "lstvProcess");
    EXPECT_EQ(Status(), "1 row");
    list.UserCheck(list.Row(0), true);
    EXPECT_EQ(Status(), "1 row, 1 ticked");
    list.Row(0).SetChecked(false);
    EXPECT_EQ(Status(), "1 row");
}

TEST_F(StatusStripTest, FollowsAListThatIsFilledAnewAndRowsThatGo) {
    AddProcess(1, "C:\\one.exe", "a");
    program.Start();
    AddProcess(2, "C:\\two.exe", "b");
    Click("frmProcess", "cmdRefresh");
    EXPECT_EQ(Status(), "2 rows");
    ListView& list = List("frmProcess", "lstvProcess");
    list.UserCheck(list.Row(0), true);
    Click("frmProcess", "cmdAdd");
    EXPECT_EQ(Status(), "1 row");
}

TEST_F(StatusStripTest, SaysThatThereAreNoRows) {
    program.Start();
    EXPECT_EQ(Status(), "No rows");
}

TEST_F(StatusStripTest, FollowsThePagesAndTheirViews) {
    AddDomain("one.example");
    AddDomain("two.example", false);
    AddRunValue("Tray");
    for (const char* key : {"A", "B", "C"}) AddApplication(key);
    program.Start();
    ClickPage("cmdIE");
    EXPECT_EQ(Status(), "No rows");
    Click("frmIE", "cmdDomain");
    EXPECT_EQ(Status(), "2 rows, 1 disabled");
    Click("frmIE", "cmdDomainCheckAll");
    EXPECT_EQ(Status(), "2 rows, 1 disabled, 2 ticked");
    Click("frmIE", "cmdURLs");
    EXPECT_EQ(Status(), "");
    Click("frmIE", "cmdDomain");
    EXPECT_EQ(Status(), "2 rows, 1 disabled, 2 ticked");
    ClickPage("cmdStartup");
    EXPECT_EQ(Status(), "1 row");
    ClickPage("cmdAddremove");
    EXPECT_EQ(Status(), "3 rows");
    ClickPage("cmdOptions");
    EXPECT_EQ(Status(), "No rows");
    ClickPage("cmdUtilities");
    EXPECT_EQ(Status(), "");
}

TEST_F(StatusStripTest, FollowsTheTabsOfTheAdvancedSettings) {
    program.machine.SetDword(Hive::CurrentUser,
                             "Software\\Microsoft\\Windows\\CurrentVersion\\Internet "
                             "Settings\\ZoneMap\\ProtocolDefaults",
                             "http", 3);
    program.Start();
    ClickPage("cmdIE");
    Click("frmIE", "cmdAdvance");
    EXPECT_EQ(Status(), "No rows");
    auto& tabs = program.Get<TabStrip>("frmIE", "tbMain");
    tabs.UserSelect(2);
    EXPECT_EQ(Status(), "");
    tabs.UserSelect(3);
    EXPECT_EQ(Status(), "1 row");
}

TEST_F(StatusStripTest, FollowsItemsThatAreSwitchedOff) {
    AddDomain("one.example");
    program.Start();
    ClickPage("cmdIE");
    Click("frmIE", "cmdDomain");
    ListView& list = List("frmIE", "lstvDomains");
    list.UserCheck(list.Row(0), true);
    EXPECT_EQ(Status(), "1 row, 1 ticked");
    Click("frmIE", "cmdDomainDisable");
    EXPECT_EQ(Status(), "1 row, 1 disabled");
}

TEST(CountsText, LeavesOutWhatThereIsNoneOf) {
    EXPECT_EQ(CountsText({128, 3, 2, 1}), "128 rows, 3 suspicious, 2 disabled, 1 ticked");
    EXPECT_EQ(CountsText({2, 0, 0, 2}), "2 rows, 2 ticked");
    EXPECT_EQ(CountsText({1, 0, 0, 0}), "1 row");
    EXPECT_EQ(CountsText({}), "No rows");
}

}  // namespace
}  // namespace velkarix
