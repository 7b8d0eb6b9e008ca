// The foot of the main window, on the whole program: the counts of the list on view, and what the
// program is busy with.
#include "shell/StatusStrip.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <string>
#include <vector>

#include "forms/TabStrip.h"
#include "tests/machine/TestProgram.h"
#include "tests/startup/StartupPage.h"

namespace velkarix {
namespace {

constexpr const char* Domains =
    "Software\\Microsoft\\Windows\\CurrentVersion\\Internet Settings\\ZoneMap\\Domains\\";
constexpr const char* RunValues = "Software\\Microsoft\\Windows\\CurrentVersion\\Run";
constexpr const char* Uninstall = "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\";

class StatusStripTest : public testing::Test {
  protected:
    void AddProcess(int id, const std::string& path, const std::string& content) {
        program.machine.AddFile(path).Content(content);
        program.machine.AddProcess(static_cast<ProcessId>(id), path);
    }
    void AddDomain(const std::string& name, bool enabled = true) {
        const std::string live = Domains + name;
        const std::string held = "Software\\Velkarix\\Disabled\\Domains\\" + name;
        program.machine.SetDword(Hive::CurrentUser, enabled ? live : held, "*", 4);
    }
    void AddRunValue(const std::string& name) {
        program.machine.SetValue(Hive::CurrentUser, RunValues, name, "C:\\gone.exe");
    }
    void AddApplication(const std::string& key) {
        for (const char* name : {"DisplayName", "UninstallString"}) {
            program.machine.SetValue(Hive::LocalMachine, Uninstall + key, name, key);
        }
    }
    std::string Status() { return program.Get<Label>("frmMain", "lblStatus").Text(); }
    ProgressBar& Bar() { return program.Get<ProgressBar>("frmMain", "barProgress"); }
    void ClickPage(const char* button) { Click("frmMain", button); }
    void Click(const char* form, const char* button) {
        EXPECT_TRUE(program.application.forms.Loaded(form)->Find(button)->Raise("Click"));
    }
    ListView& List(const char* form, const char* list) { return program.Get<ListView>(form, list); }

    TestProgram program;
};

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

// ---- While the program is busy

// What is on the screen whenever something is to be seen at once.
class BusyTest : public StatusStripTest, protected ControlView {
  protected:
    // From now on, each look at the ticks finds a tenth of a second gone by.
    void Watch() {
        program.machine.clock.SetTickStep(100);
        program.Get<Label>("frmMain", "lblStatus").AttachView(this);
    }
    void EndWatch() { program.Get<Label>("frmMain", "lblStatus").AttachView(nullptr); }
    void Changed(Aspect aspect) override {
        if (aspect == Aspect::Now) {
            seen.push_back(Status());
            percents[Status()] = Bar().Percent();
        }
        if (aspect == Aspect::Text) ++changes;
    }
    bool Saw(const std::string& text) const {
        return std::find(seen.begin(), seen.end(), text) != seen.end();
    }

    std::vector<std::string> seen;
    std::map<std::string, int> percents;  // of the bar, with each text
    int changes = 0;                      // of the text, whether it was to be seen at once or not
};

TEST_F(BusyTest, SaysWhatEachPageLooksAtAndServesNoEvents) {
    AddProcess(1, "C:\\one.exe", "a");
    AddDomain("one.example");
    AddRunValue("Tray");
    AddApplication("Tool");
    program.Start();
    Watch();
    for (const char* page : {"cmdIE", "cmdStartup", "cmdAddremove", "cmdProcess"}) ClickPage(page);
    EndWatch();
    EXPECT_EQ(seen, (std::vector<std::string>{"Domains: one.example", "Startup items: Tray",
                                              "Installed applications: Tool",
                                              "Running processes: C:\\one.exe"}));
    EXPECT_EQ(program.desktop.yields, 0);
    EXPECT_EQ(Status(), "1 row");
}

TEST_F(BusyTest, ShowsABarWhileItIsKnownHowMuchThereIs) {
    for (int i = 0; i < 4; ++i) AddDomain("d" + std::to_string(i) + ".example");
    program.Start();
    EXPECT_FALSE(Bar().Visible());
    struct : velkarix::ControlView {
        void Changed(Aspect aspect) override {
            if (aspect != Aspect::Now) return;
            EXPECT_TRUE(bar->Visible());
            percents.push_back(bar->Percent());
        }
        ProgressBar* bar = nullptr;
        std::vector<int> percents;
    } view;
    view.bar = &Bar();
    Bar().AttachView(&view);
    program.machine.clock.SetTickStep(100);
    ClickPage("cmdIE");
    Bar().AttachView(nullptr);
    EXPECT_EQ(view.percents, (std::vector<int>{0, 25, 50, 75}));
    EXPECT_FALSE(Bar().Visible());
}

TEST_F(BusyTest, SaysWhichRowAReportIsAt) {
    AddProcess(1, "C:\\one.exe", "a");
    program.Start();
    program.desktop.nextSaveFile = "C:\\report.txt";
    Watch();
    Click("frmProcess", "cmdReport");
    EndWatch();
    EXPECT_EQ(seen, std::vector<std::string>{"Report: Running processes: one.exe"});
    EXPECT_EQ(Status(), "1 row");
}

TEST_F(BusyTest, SaysWhichAreaAFullReportIsAt) {
    AddDomain("one.example");
    program.Start();
    ClickPage("cmdOptions");
    for (const char* box : {"chkIE", "chkStartup"}) {
        program.Get<CheckBox>("frmOptions", box).SetChecked(true);
    }
    program.desktop.nextSaveFile = "C:\\report.txt";
    Watch();
    Click("frmOptions", "cmdReport");
    EndWatch();
    EXPECT_TRUE(Saw("Full report: Internet Explorer"));
    EXPECT_TRUE(Saw("Domains: one.example"));
    EXPECT_TRUE(Saw("Report: Domains: *.one.example"));
    EXPECT_EQ(percents["Full report: Startup"], 90);  // the last of ten blocks begins
    EXPECT_EQ(Status(), "No rows");
}

TEST_F(BusyTest, SaysWhichItemMoves) {
    AddDomain("one.example");
    program.Start();
    ClickPage("cmdIE");
    ListView& list = List("frmIE", "lstvDomains");
    list.UserCheck(list.Row(0), true);
    Watch();
    Click("frmIE", "cmdDomainDisable");
    EndWatch();
    EXPECT_EQ(seen, (std::vector<std::string>{"Domains: one.example", "Domains: one.example"}));
}

TEST_F(BusyTest, SaysWhichStartupItemMoves) {
    AddRunValue("Tray");
    program.Start();
    ClickPage("cmdStartup");
    ListView& list = List("frmStartup", "lstvStartup");
    list.UserCheck(list.Row(0), true);
    Watch();
    Click("frmStartup", "cmdDisable");
    EndWatch();
    EXPECT_EQ(seen, (std::vector<std::string>{"Startup items: Tray", "Startup items: Tray"}));
}

TEST_F(BusyTest, SaysWhichShortcutIsRead) {
    PutStartupFolders(program.machine);
    PutShortcut(program.machine, LiveCU, "Tray.lnk", "C:\\gone.exe");
    program.Start();
    Watch();
    ClickPage("cmdStartup");
    EndWatch();
    EXPECT_EQ(seen, std::vector<std::string>{"Startup items: Tray.lnk"});
}

TEST_F(BusyTest, SaysWhichBackupIsRead) {
    program.AddInstalledFile("backup\\1.prc").Content("C:\\one.exe\00110/5/2004\r\n");
    program.Start();
    Watch();
    ClickPage("cmdOptions");
    EndWatch();
    EXPECT_EQ(seen, std::vector<std::string>{"Backups of deleted files: 1.prc"});
}

TEST_F(BusyTest, SaysWhichControlIsForbidden) {
    program.AddInstalledFile("MalActivex.scl").Content("{1}\r\n");
    program.Start();
    ClickPage("cmdUtilities");
    Watch();
    Click("frmUtilities", "cmdActiveXProtect");
    EndWatch();
    ASSERT_EQ(seen.size(), 1u);
    EXPECT_TRUE(seen[0].ends_with("\\ActiveX Compatibility\\{1}")) << seen[0];
    EXPECT_EQ(Status(), "");
}

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

TEST(CountsText, LeavesOutWhatThereIsNoneOf) {
    EXPECT_EQ(CountsText({128, 3, 2, 1}), "128 rows, 3 suspicious, 2 disabled, 1 ticked");
    EXPECT_EQ(CountsText({2, 0, 0, 2}), "2 rows, 2 ticked");
    EXPECT_EQ(CountsText({1, 0, 0, 0}), "1 row");
    EXPECT_EQ(CountsText({}), "No rows");
}

}  // namespace
}  // namespace velkarix
