// What the foot of the main window says while the program is busy.
#include "tests/shell/StatusStripPage.h"
#include "tests/startup/StartupPage.h"

namespace velkarix {
namespace {

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

}  // namespace
}  // namespace velkarix
