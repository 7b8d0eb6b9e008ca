// The full report and commands that change the machine, each in the middle of the other.
#include "tests/browser/BrowserPage.h"
#include "tests/machine/ControlGestures.h"
#include "tests/options/FullReportPage.h"

namespace velkarix {
namespace {

class FullReportMeetsAChange : public FullReportPage, public testing::WithParamInterface<int> {
  protected:
    FullReportMeetsAChange() { PutReportMachine(Machine()); }
    bool HasItem(const std::string& holder) {
        return Machine().registry.HasKey(Hive::LocalMachine, holder + "\\" + ClassA);
    }
    void DisableBHO() {
        PressMain("cmdIE");
        TickAllRows(program.Get<ListView>("frmIE", "lstvBHO"));
        program.Get<Button>("frmIE", "cmdDisableBHO").Raise("Click");
    }
    void DeleteApplication() {
        PressMain("cmdAddremove");
        auto& list = program.Get<ListView>("frmAddRemove", "lstvAddRemove");
        list.UserSelect(&list.Row(0));
        program.desktop.answers = {MessageAnswer::Yes};
        program.Get<Button>("frmAddRemove", "cmdDelete").Raise("Click");
    }
    Texts Applications() {
        return Machine().registry.SubKeysOf(
            Hive::LocalMachine, "Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall");
    }
};

TEST_P(FullReportMeetsAChange, AndLetsItBeMade) {
    Open();
    TickAll();
    InYield(GetParam(), [&] {
        DisableBHO();
        EXPECT_FALSE(HasItem(live::BHOs));
        EXPECT_TRUE(HasItem(held::BHOs));
        DeleteApplication();
    });
    Generate();
    EXPECT_FALSE(HasItem(live::BHOs));
    EXPECT_TRUE(HasItem(held::BHOs));
    EXPECT_EQ(Applications(), Texts{"BadApp"});
    // The areas behind tell what is there now.
    EXPECT_TRUE(
        Report().ends_with("\r\nProgram Name : Zoo *******[Risk]*******\r\n"
                           "Command      : C:\\remove.exe Zoo\r\n"));
    EXPECT_EQ(Report().find("Atlas"), std::string::npos);
    EXPECT_EQ(Opened(), ReportFile);
    EXPECT_FALSE(program.application.itemChangeRuns);
}

INSTANTIATE_TEST_SUITE_P(InEachYield, FullReportMeetsAChange, testing::Range(1, Blocks + 1));

// A key goes below a page's command, which serves events too: the report may be asked for then.
class FullReportInAChange : public FullReportMeetsAChange {};

TEST_P(FullReportInAChange, IsMadeAndTheChangeIsCompleted) {
    program.Start();
    InYield(GetParam(), [&] {
        PressMain("cmdOptions");
        TickAll();
        Generate();
    });
    DisableBHO();
    EXPECT_FALSE(HasItem(live::BHOs));
    EXPECT_TRUE(HasItem(held::BHOs));
    EXPECT_EQ(Opened(), ReportFile);
    EXPECT_TRUE(Report().starts_with(ReportHeader() + ProcessArea()));
    EXPECT_TRUE(Report().ends_with(StartupArea() + InstalledArea()));
    EXPECT_TRUE(ReportButton().Enabled());
    EXPECT_FALSE(program.application.itemChangeRuns);
}

INSTANTIATE_TEST_SUITE_P(InItsYields, FullReportInAChange, testing::Values(1));

}  // namespace
}  // namespace velkarix
