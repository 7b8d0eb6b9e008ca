// The full report serves events while it is made: whatever the user does then, it says the same,
// and doesn't begin anew.
#include <tuple>

#include "tests/options/FullReportPage.h"

namespace velkarix {
namespace {

struct Interruption {
    const char* name;
    std::function<void(TestProgram&)> happens;
};

void Press(TestProgram& program, const char* button) {
    program.Get<Button>("frmMain", button).Raise("Click");
}

void UnloadPages(TestProgram& program) {
    for (const char* page : {"frmProcess", "frmIE", "frmStartup", "frmAddRemove", "frmOptions"}) {
        program.application.forms.Unload(page);
    }
}

const Interruption Interruptions[] = {
    {"Processes", [](TestProgram& it) { Press(it, "cmdProcess"); }},
    {"TheFilter",
     [](TestProgram& it) {
         Press(it, "cmdProcess");
         it.Get<OptionButton>("frmProcess", "optFilter(1)").Raise("Click");
     }},
    {"TheBrowser", [](TestProgram& it) { Press(it, "cmdIE"); }},
    {"TheBrowserAndBack",
     [](TestProgram& it) {
         Press(it, "cmdIE");
         Press(it, "cmdOptions");
     }},
    {"StartupItems", [](TestProgram& it) { Press(it, "cmdStartup"); }},
    {"Applications", [](TestProgram& it) { Press(it, "cmdAddremove"); }},
    {"Utilities", [](TestProgram& it) { Press(it, "cmdUtilities"); }},
    {"AllPagesAndBack",
     [](TestProgram& it) {
         for (const char* button :
              {"cmdProcess", "cmdIE", "cmdStartup", "cmdAddremove", "cmdOptions"}) {
             Press(it, button);
         }
     }},
    {"PagesThatGo", UnloadPages},
    {"OtherAreas",
     [](TestProgram& it) {
         for (const char* box : AreaBoxes) it.Get<CheckBox>("frmOptions", box).Raise("Click");
     }},
    {"ASecondClick",
     [](TestProgram& it) { it.Get<Button>("frmOptions", "cmdReport").Raise("Click"); }},
    {"ASecondCommand",
     [](TestProgram& it) { it.application.forms.Loaded("frmOptions")->Run("cmdReport_Click"); }},
    {"ASecondClickOnAPageThatCameBack",
     [](TestProgram& it) {
         Press(it, "cmdProcess");
         Press(it, "cmdOptions");
         it.Get<CheckBox>("frmOptions", "chkIE").Raise("Click");
         EXPECT_FALSE(it.Get<Button>("frmOptions", "cmdReport").Raise("Click"));
     }},
    {"ADialog", [](TestProgram& it) { it.Get<LinkLabel>("frmMain", "lblAbout").Raise("Click"); }},
    {"TheReportOfAPage",
     [](TestProgram& it) {
         Press(it, "cmdStartup");
         it.desktop.nextSaveFile = "C:\\Other.txt";
         it.Get<Button>("frmStartup", "cmdReport").Raise("Click");
     }},
};

using Interrupted = std::tuple<const Interruption*, int>;

class FullReportReentrance : public FullReportPage,
                             public testing::WithParamInterface<Interrupted> {
  protected:
    FullReportReentrance() { PutReportMachine(Machine()); }
    const Interruption& Happens() { return *std::get<0>(GetParam()); }
    int Yield() { return std::get<1>(GetParam()); }
};

TEST_P(FullReportReentrance, SaysTheSameAndEndsAsWithoutTheInterruption) {
    Open();
    TickAll();
    bool happened = false;
    InYield(Yield(), [&] {
        happened = true;
        program.desktop.nextSaveFile = "C:\\Second.txt";
        Happens().happens(program);
    });
    Generate();
    ASSERT_TRUE(happened);
    EXPECT_EQ(Report(), WholeReport());
    EXPECT_EQ(Opened(), ReportFile);
    EXPECT_FALSE(Machine().disk.Exists("C:\\Second.txt"));
    EXPECT_EQ(program.desktop.yields, Blocks);
    EXPECT_TRUE(Messages().empty());
}

// Whatever is on view afterwards, each page can be opened, and the report be made again.
TEST_P(FullReportReentrance, LeavesTheProgramInOrder) {
    Open();
    TickAll();
    InYield(Yield(), [&] { Happens().happens(program); });
    Generate();
    program.desktop.onYield = {};
    const std::pair<const char*, const char*> pages[] = {{"cmdProcess", "frmProcess"},
                                                         {"cmdIE", "frmIE"},
                                                         {"cmdStartup", "frmStartup"},
                                                         {"cmdAddremove", "frmAddRemove"},
                                                         {"cmdOptions", "frmOptions"}};
    for (const auto& [button, page] : pages) {
        PressMain(button);
        EXPECT_NE(Loaded(page), nullptr) << page;
        EXPECT_TRUE(program.Get<Button>("frmMain", button).Pressed()) << button;
    }
    PressMain("cmdProcess");
    PressMain("cmdOptions");
    Machine().disk.Remove(ReportFile);
    ASSERT_TRUE(ReportButton().Enabled());
    Tick({"chkAddremove"});
    Generate();
    EXPECT_EQ(Report(), ReportHeader() + InstalledArea());
}

std::vector<const Interruption*> AllInterruptions() {
    std::vector<const Interruption*> all;
    for (const Interruption& each : Interruptions) all.push_back(&each);
    return all;
}

INSTANTIATE_TEST_SUITE_P(Meets, FullReportReentrance,
                         testing::Combine(testing::ValuesIn(AllInterruptions()),
                                          testing::Range(1, Blocks + 1)),
                         [](const testing::TestParamInfo<Interrupted>& test) {
                             return std::get<0>(test.param)->name +
                                    std::to_string(std::get<1>(test.param));
                         });

}  // namespace
}  // namespace velkarix
