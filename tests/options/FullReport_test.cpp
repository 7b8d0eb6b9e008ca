// The full report, compared whole, and the command that makes it.
#include "options/FullReport.h"

#include "process/frmProcess.h"
#include "tests/options/FullReportPage.h"

namespace velkarix {
namespace {

class FullReportTest : public FullReportPage {
  protected:
    FullReportTest() { PutReportMachine(Machine()); }
};

// ---- What it says

TEST_F(FullReportTest, TellsOfAllAreasInTheirOrder) {
    Open();
    TickAll();
    Generate();
    EXPECT_EQ(Report(), WholeReport());
    EXPECT_TRUE(Messages().empty());
}

TEST_F(FullReportTest, TellsOfProcessesAlone) {
    GenerateFor({"chkProcess"});
    EXPECT_EQ(Report(), ReportHeader() + ProcessArea());
}

TEST_F(FullReportTest, TellsOfTheBrowserAlone) {
    GenerateFor({"chkIE"});
    EXPECT_EQ(Report(), ReportHeader() + BrowserArea());
}

TEST_F(FullReportTest, TellsOfStartupItemsAlone) {
    GenerateFor({"chkStartup"});
    EXPECT_EQ(Report(), ReportHeader() + StartupArea());
}

TEST_F(FullReportTest, TellsOfInstalledApplicationsAlone) {
    GenerateFor({"chkAddremove"});
    EXPECT_EQ(Report(), ReportHeader() + InstalledArea());
}

TEST_F(FullReportTest, KeepsItsOrderWhateverTheOrderOfTheTicks) {
    GenerateFor({"chkAddremove", "chkProcess"});
    EXPECT_EQ(Report(), ReportHeader() + ProcessArea() + InstalledArea());
}

TEST_F(FullReportTest, ReplacesAFileThatIsThere) {
    Machine().AddFile(ReportFile).Content(std::string(100000, 'x'));
    GenerateFor({"chkAddremove"});
    EXPECT_EQ(Report(), ReportHeader() + InstalledArea());
}

TEST_F(FullReportTest, SaysTheSameWhenItIsMadeAgain) {
    Open();
    TickAll();
    Generate();
    const std::string first = Report();
    Generate();
    EXPECT_EQ(Report(), first);
}

TEST_F(FullReportTest, IsAboutTheMachineAsItIsWhenItIsMade) {
    Open();
    Tick({"chkAddremove"});
    Machine().registry.RemoveKey(Hive::LocalMachine,
                                 "Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall");
    Generate();
    EXPECT_EQ(Report(), ReportHeader() + "\r\n****** Add/Remove Report ******\r\n\r\n");
}

// ---- The command

TEST_F(FullReportTest, AsksForTheFileAndOpensIt) {
    GenerateFor({"chkAddremove"});
    ASSERT_EQ(program.desktop.saveRequests.size(), 1u);
    EXPECT_EQ(program.desktop.saveRequests[0].filterName, "Text File (*.txt)");
    EXPECT_EQ(program.desktop.saveRequests[0].pattern, "*.txt");
    EXPECT_EQ(program.desktop.saveRequests[0].fileName, "FullReport.txt");
    ASSERT_EQ(Machine().shell.Opened().size(), 1u);
    EXPECT_EQ(Machine().shell.Opened()[0], (ShellOpening{0, "Open", ReportFile, "", "", 1}));
}

TEST_F(FullReportTest, WantsAnAreaToBeChosen) {
    Open();
    for (const char* box : AreaBoxes) {
        EXPECT_FALSE(program.Get<CheckBox>("frmOptions", box).Checked()) << box;
    }
    Generate();
    EXPECT_EQ(Messages(), Texts{"Please select atleast one area to print"});
    EXPECT_EQ(program.desktop.messages[0].icon, MessageIcon::Information);
    EXPECT_EQ(program.desktop.messages[0].title, "Velkarix");
    EXPECT_TRUE(program.desktop.saveRequests.empty());
    EXPECT_EQ(Report(), "(no file)");
    EXPECT_TRUE(ReportButton().Enabled());
}

TEST_F(FullReportTest, TakesAnAreaBackThatIsUnticked) {
    GenerateFor({"chkIE", "chkAddremove", "chkIE"});
    EXPECT_EQ(Report(), ReportHeader() + InstalledArea());
}

TEST_F(FullReportTest, DoesNothingWhenTheUserCancels) {
    Machine().AddFile(ReportFile).Content("mine");
    Open();
    TickAll();
    program.desktop.events.clear();
    ReportButton().Raise("Click");
    EXPECT_EQ(program.desktop.saveRequests.size(), 1u);
    EXPECT_EQ(Report(), "mine");
    EXPECT_TRUE(program.desktop.events.empty());
    EXPECT_EQ(Opened(), "");
    EXPECT_EQ(program.desktop.yields, 0);
    EXPECT_TRUE(ReportButton().Enabled());
    Generate();
    EXPECT_EQ(Report(), WholeReport());
}

TEST_F(FullReportTest, DisablesItsButtonWhileItRuns) {
    Open();
    TickAll();
    int disabled = 0;
    program.desktop.onYield = [&] { disabled += ReportButton().Enabled() ? 0 : 1; };
    Generate();
    EXPECT_EQ(disabled, program.desktop.yields);
    EXPECT_TRUE(ReportButton().Enabled());
}

// Before each of the twelve blocks.
TEST_F(FullReportTest, ServesEventsMeanwhile) {
    Open();
    TickAll();
    std::vector<std::size_t> written;
    program.desktop.onYield = [&] { written.push_back(Report().size()); };
    Generate();
    ASSERT_EQ(written.size(), 12u);
    for (std::size_t i = 1; i < written.size(); ++i) EXPECT_GT(written[i], written[i - 1]) << i;
}

// ---- The pages

TEST_F(FullReportTest, LoadsThePagesInTheMainWindowUnseenAndUnloadsThem) {
    Open();
    TickAll();
    program.desktop.events.clear();
    Generate();
    EXPECT_EQ(
        program.desktop.events,
        (Texts{"create frmProcess in picPage", "destroy frmProcess", "create frmIE in picPage",
               "destroy frmIE", "create frmStartup in picPage", "destroy frmStartup",
               "create frmAddRemove in picPage", "destroy frmAddRemove"}));
    EXPECT_NE(Loaded("frmOptions"), nullptr);
    EXPECT_TRUE(program.Get<Button>("frmMain", "cmdOptions").Pressed());
}

TEST_F(FullReportTest, LeavesTheProcessPageOnAll) {
    GenerateFor({"chkProcess"});
    EXPECT_EQ(Setting("Filter"), "0");
    PressMain("cmdProcess");
    EXPECT_TRUE(program.Get<OptionButton>("frmProcess", "optFilter(0)").Chosen());
    EXPECT_EQ(program.Get<ListView>("frmProcess", "lstvProcess").RowCount(), 3u);
}

TEST_F(FullReportTest, LeavesTheFilterAloneWithoutProcesses) {
    GenerateFor({"chkIE", "chkStartup", "chkAddremove"});
    EXPECT_EQ(Setting("Filter"), "(missing)");
}

TEST_F(FullReportTest, ChangesNothingOnTheMachine) {
    Open();
    TickAll();
    const auto registry = [this] {
        return Machine().registry.TreeText(Hive::LocalMachine, "") +
               Machine().registry.TreeText(Hive::CurrentUser, "") +
               Machine().registry.TreeText(Hive::ClassesRoot, "");
    };
    const std::string before = registry();
    Machine().Journal().Clear();
    Generate();
    EXPECT_EQ(registry(), before);
    for (const char* call : {"DeleteFileA", "CopyFileA", "TerminateProcess"}) {
        EXPECT_EQ(Machine().Journal().CountOf(call), 0u) << call;
    }
    // The report is written; the other files are read.
    for (const std::string& opened : Machine().Journal().ArgumentsOf("CreateFileA")) {
        EXPECT_TRUE(opened == ReportFile || opened.starts_with("C:\\Tools\\") ||
                    opened.ends_with(".lnk") || opened.starts_with("C:\\Velkarix\\SafeProcess.vkl"))
            << opened;
    }
}

// ---- Empty lists

class EmptyFullReport : public FullReportPage {};

TEST_F(EmptyFullReport, LeavesEachHeadingWithNothingBelowIt) {
    Open();
    TickAll();
    Generate();
    const std::string report = Report();
    const std::size_t body = report.find("\r\n****** Process Report ******");
    ASSERT_NE(body, std::string::npos);
    EXPECT_EQ(report.substr(body), EmptyAreas());
    EXPECT_TRUE(Messages().empty());
}

}  // namespace
}  // namespace velkarix
