// What must hold on each of the systems that the program is made for.
#include <algorithm>

#include "Input.h"
#include "ProgramTest.h"
#include "Samples.h"
#include "Screen.h"
#include "Setup.h"
#include "Wait.h"

namespace velkarix::e2e {
namespace {

class EverySystem : public ProgramTest {
  protected:
    bool IsRed(const std::string& name) {
        return CountPixels(List().LabelArea(RowOf(name)), IsReddish) > 0;
    }
};

TEST_F(EverySystem, TheProgramStartsAndEnds) {
    EXPECT_EQ(Start().Main().Text(), "Velkarix Version: 1.0");
    EXPECT_EQ(Running().Close(), 0u);
}

TEST_F(EverySystem, RunningProgramsAreListedByItsOwnMethod) {
    Start();
    EXPECT_EQ(List().Row(RowOf("SampleIdle.exe")), ListedRow(SamplePath("SampleIdle.exe")));
}

TEST_F(EverySystem, TheListsJudgeWhatRuns) {
    Start();
    SelectRow("SampleSafe.exe");
    EXPECT_TRUE(WaitUntil([this] { return IsRed("SampleSuspect.exe"); }));
    EXPECT_FALSE(IsRed("SampleIdle.exe"));
    EXPECT_FALSE(List().Find("services.exe"));
}

TEST_F(EverySystem, AllShowsEveryProcess) {
    Start();
    const int filtered = List().RowCount();
    ASSERT_TRUE(Running().Press("optFilter(0)"));
    EXPECT_GT(List().RowCount(), filtered);
    EXPECT_TRUE(List().Find("services.exe"));
}

TEST_F(EverySystem, RefreshShowsWhatHasStarted) {
    Start();
    const int before = List().RowCount();
    const Process late(SamplePath("SampleIdle.exe"));
    ASSERT_TRUE(Running().Press("cmdRefresh"));
    EXPECT_EQ(List().RowCount(), before + 1);
}

TEST_F(EverySystem, EachPageCanBeEntered) {
    Start();
    const std::pair<const char*, const char*> pages[] = {{"cmdIE", "lstvBHO"},
                                                         {"cmdStartup", "lstvStartup"},
                                                         {"cmdAddremove", "lstvAddRemove"},
                                                         {"cmdOptions", "lstvBackup"},
                                                         {"cmdUtilities", "cmdHosts"}};
    for (const auto& [button, control] : pages) {
        ASSERT_TRUE(Running().Press(button));
        EXPECT_TRUE(Running().Control(control).Visible()) << control;
    }
    ASSERT_TRUE(Running().Press("cmdProcess"));
    EXPECT_TRUE(List().Find("SampleIdle.exe"));
}

TEST_F(EverySystem, TheSafeListHidesAFile) {
    Start();
    BringToFront(Running().Main());
    ClickAt(List().CheckBox(RowOf("SampleSafe.exe")));
    ASSERT_TRUE(WaitUntil([this] { return List().Checked(RowOf("SampleSafe.exe")); }));
    ASSERT_TRUE(Running().Press("cmdAdd"));
    EXPECT_FALSE(List().Find("SampleSafe.exe"));
    ASSERT_TRUE(Running().Press("cmdRefresh"));
    EXPECT_FALSE(List().Find("SampleSafe.exe"));
}

TEST_F(EverySystem, ASecondInstanceEnds) {
    Start();
    EXPECT_EQ(Process(install_.Path("Velkarix.exe"), install_.Folder()).WaitForExit(), 0u);
    EXPECT_TRUE(Running().OwnProcess().Running());
}

}  // namespace
}  // namespace velkarix::e2e
