// The full report serves events while it is made: whatever the user does then, it says the same,
// doesn't begin anew, and ends cleanly with the program.
#include <tuple>

#include "forms/TabStrip.h"
#include "tests/browser/BrowserPage.h"
#include "tests/options/FullReportPage.h"

namespace velkarix {
namespace {

constexpr int Blocks = 12;  // of all areas; events are served before each

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
    EXPECT_EQ(Report(),
              ReportHeader() + ProcessArea() + BrowserArea() + StartupArea() + InstalledArea());
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

// ---- Pages on view

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
        Machine().AddKey(Hive::LocalMachine, std::string(live::BHOs) + "\\" + ClassC);
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

// ---- The end of the program

struct End {
    const char* name;
    std::function<void(TestProgram&)> happens;
};
const End Ends[] = {
    {"ClosesTheMainWindow",
     [](TestProgram& it) { it.application.forms.Loaded("frmMain")->Close(); }},
    {"UnloadsAll", [](TestProgram& it) { it.application.forms.UnloadAll("frmMain"); }},
    {"HasAFault", [](TestProgram& it) { it.application.EndWithFault(53, "File not found"); }},
};
using Ended = std::tuple<const End*, int>;

class FullReportAtTheEnd : public FullReportPage, public testing::WithParamInterface<Ended> {};

TEST_P(FullReportAtTheEnd, EndsWithTheProgram) {
    PutReportMachine(Machine());
    Open();
    TickAll();
    std::string before;
    InYield(std::get<1>(GetParam()), [&] {
        before = Report();
        std::get<0>(GetParam())->happens(program);
        Machine().Journal().Clear();
    });
    Generate();
    EXPECT_EQ(program.desktop.yields, std::get<1>(GetParam()));
    EXPECT_EQ(Report(), before);
    EXPECT_TRUE((ReportHeader() + ProcessArea() + BrowserArea() + StartupArea() + InstalledArea())
                    .starts_with(before));
    EXPECT_TRUE(Machine().Journal().Calls().empty());
    EXPECT_EQ(Opened(), "");
    EXPECT_TRUE(Loaded("frmOptions") == nullptr || ReportButton().Enabled());
    program.application.forms.UnloadAll("frmMain");
    EXPECT_EQ(Loaded("frmIE"), nullptr);
}

INSTANTIATE_TEST_SUITE_P(When, FullReportAtTheEnd,
                         testing::Combine(testing::Values(&Ends[0], &Ends[1], &Ends[2]),
                                          testing::Range(1, Blocks + 1)),
                         [](const testing::TestParamInfo<Ended>& test) {
                             return std::get<0>(test.param)->name +
                                    std::to_string(std::get<1>(test.param));
                         });

// A writer's message serves events too, so that the window may be closed behind the last of them.
TEST_F(FullReportAndPages, EndsWithAMainWindowThatIsClosedInTheLastBlock) {
    Open();
    Tick({"chkAddremove"});
    program.desktop.onYield = [this] {
        const std::size_t next = Machine().Journal().Calls().size();
        Machine().Journal().OnCall(next, [this] { Loaded("frmMain")->Close(); });
    };
    Generate();
    EXPECT_EQ(Report(), ReportHeader() + InstalledArea());
    EXPECT_EQ(Opened(), "");
    EXPECT_NE(Loaded("frmAddRemove"), nullptr);  // goes with all others
}

// ---- Commands that change the machine

class FullReportMeetsAChange : public FullReportPage, public testing::WithParamInterface<int> {
  protected:
    FullReportMeetsAChange() { PutReportMachine(Machine()); }
    bool HasItem(const std::string& holder) {
        return Machine().registry.HasKey(Hive::LocalMachine, holder + "\\" + ClassA);
    }
    void DisableBHO() {
        PressMain("cmdIE");
        auto& list = program.Get<ListView>("frmIE", "lstvBHO");
        for (std::size_t i = 0; i < list.RowCount(); ++i) list.UserCheck(list.Row(i), true);
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
