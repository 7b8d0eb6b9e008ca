// Pages that the user has on view while the full report is made.
#include "forms/TabStrip.h"
#include "tests/browser/BrowserPage.h"
#include "tests/options/FullReportPage.h"

namespace velkarix {
namespace {

class FullReportAndPages : public FullReportPage {
  protected:
    FullReportAndPages() { PutReportMachine(Machine()); }
    bool Pressed(const char* button) { return program.Get<Button>("frmMain", button).Pressed(); }
};

TEST_F(FullReportAndPages, ClosesThePageOnViewAndLetsItBeOpenedAnew) {
    Open();
    TickAll();
    InYield(4, [this] {
        PressMain("cmdIE");
        Machine().AddKey(Hive::LocalMachine, std::string(live::BHOs).append("\\").append(ClassC));
    });
    Generate();
    EXPECT_EQ(Loaded("frmIE"), nullptr);
    EXPECT_FALSE(Pressed("cmdIE"));
    PressMain("cmdIE");
    EXPECT_TRUE(Pressed("cmdIE"));
    EXPECT_EQ(program.Get<ListView>("frmIE", "lstvBHO").RowCount(), 3u);
    EXPECT_EQ(program.desktop.events.back(), "focus lstvBHO");
}

TEST_F(FullReportAndPages, LeavesAPageThatWasOpenedBehindItsArea) {
    Open();
    TickAll();
    InYield(Blocks, [this] { PressMain("cmdIE"); });
    Generate();
    EXPECT_NE(Loaded("frmIE"), nullptr);
    EXPECT_TRUE(Pressed("cmdIE"));
}

TEST_F(FullReportAndPages, ShowsThePageThatIsBeingReported) {
    Open();
    TickAll();
    InYield(4, [this] {
        program.desktop.events.clear();
        PressMain("cmdIE");
        EXPECT_EQ(program.desktop.events,
                  (Texts{"destroy frmOptions", "show frmIE", "focus lstvBHO"}));
    });
    Generate();
}

TEST_F(FullReportAndPages, TellsTheZoneThatTheUserHasOnView) {
    Open();
    Tick({"chkIE"});
    InYield(9, [this] {
        PressMain("cmdIE");
        program.Get<TabStrip>("frmIE", "tbSecurityZone").UserSelect(2);
    });
    Generate();
    const std::string expected = BrowserSettings(
        "Property          : Download signed ActiveX controls\r\nStatus            : Prompt\r\n");
    EXPECT_TRUE(Report().ends_with(expected)) << Report();
}

TEST_F(FullReportAndPages, EnablesTheButtonOfThePageThatIsThereAtTheEnd) {
    Open();
    Tick({"chkProcess", "chkAddremove"});
    InYield(1, [this] {
        PressMain("cmdProcess");
        PressMain("cmdOptions");
        EXPECT_FALSE(ReportButton().Enabled());
    });
    Generate();
    EXPECT_TRUE(ReportButton().Enabled());
}

}  // namespace
}  // namespace velkarix
