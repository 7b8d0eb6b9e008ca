// What the process page lists: rows, columns, marks, filter.
#include <algorithm>

#include "Input.h"
#include "ProgramTest.h"
#include "Samples.h"
#include "Screen.h"
#include "Setup.h"
#include "Wait.h"

namespace velkarix::e2e {
namespace {

class ProcessList : public ProgramTest {
  protected:
    // The pixels of a row's name that are drawn in red.
    int RedPixels(const std::string& name) {
        return CountPixels(List().LabelArea(RowOf(name)), IsReddish);
    }
    // The row that is selected is drawn in the colours of the selection.
    void SelectAnother() {
        BringToFront(Running().Main());
        SelectRow("SampleSafe.exe");
    }
};

TEST_F(ProcessList, TheColumnsHaveTheirCaptions) {
    Start();
    EXPECT_EQ(List().ColumnCaptions(),
              (std::vector<std::string>{"EXE Name", "File Size [Kb]", "Created On", "Company Name",
                                        "Prodcut Name", "Description", "Path"}));
}

TEST_F(ProcessList, ARowShowsTheFactsOfTheFile) {
    const std::string path = SamplePath("SampleIdle.exe");
    ASSERT_EQ(ShownFacts(path)[4], "Harmless idle program");
    Start();
    EXPECT_EQ(List().Row(RowOf("SampleIdle.exe")), ListedRow(path));
}

TEST_F(ProcessList, TheProgramListsItself) {
    Start();
    EXPECT_EQ(List().Text(RowOf("Velkarix.exe"), 6), ListedFolder(install_.Folder() + "\\"));
}

TEST_F(ProcessList, TwoProcessesOfOneFileAreTwoRows) {
    const Process second(SamplePath("SampleIdle.exe"));
    Start();
    EXPECT_EQ(std::ranges::count(List().Column(0), "SampleIdle.exe"), 2);
}

TEST_F(ProcessList, ASuspiciousRowIsRedAndOthersAreNot) {
    Start();
    SelectAnother();
    EXPECT_TRUE(WaitUntil([this] { return RedPixels("SampleSuspect.exe") > 0; }));
    EXPECT_EQ(RedPixels("SampleIdle.exe"), 0);
}

TEST_F(ProcessList, ASuspiciousRowIsBoldUnlessTheSettingsSayOtherwise) {
    Start();
    SelectAnother();
    ASSERT_TRUE(WaitUntil([this] { return RedPixels("SampleSuspect.exe") > 0; }));
    const int bold = RedPixels("SampleSuspect.exe");
    ASSERT_EQ(Running().Close(), 0u);
    WritePrivateProfileStringA("Main", "FontBold", "0", install_.Path("Settings.ini").c_str());
    Start();
    SelectAnother();
    ASSERT_TRUE(WaitUntil([this] { return RedPixels("SampleSuspect.exe") > 0; }));
    EXPECT_LT(RedPixels("SampleSuspect.exe"), bold);
}

TEST_F(ProcessList, TheColourOfSuspiciousRowsComesFromTheSettings) {
    constexpr int Green = 0x00C000;
    WritePrivateProfileStringA("Main", "SusColor", std::to_string(Green).c_str(),
                               install_.Path("Settings.ini").c_str());
    Start();
    SelectAnother();
    const auto greenPixels = [this] {
        return CountPixels(List().LabelArea(RowOf("SampleSuspect.exe")), [](COLORREF color) {
            return GetGValue(color) - std::max(GetRValue(color), GetBValue(color)) > 80;
        });
    };
    EXPECT_TRUE(WaitUntil([&] { return greenPixels() > 0; }));
    EXPECT_EQ(RedPixels("SampleSuspect.exe"), 0);
}

TEST_F(ProcessList, TheFilterHidesSystemFilesAndAllShowsThemUnmarked) {
    Start();
    EXPECT_TRUE(Running().Control("optFilter(1)").Checked());
    EXPECT_FALSE(List().Find("services.exe"));
    ASSERT_TRUE(Running().Press("optFilter(0)"));
    EXPECT_TRUE(List().Find("services.exe"));
    SelectAnother();
    EXPECT_EQ(RedPixels("SampleSuspect.exe"), 0);
    ASSERT_TRUE(Running().Press("optFilter(1)"));
    EXPECT_FALSE(List().Find("services.exe"));
    EXPECT_TRUE(List().Find("SampleSuspect.exe"));
}

TEST_F(ProcessList, TheChosenFilterIsSavedAndComesBack) {
    Start();
    ASSERT_TRUE(Running().Press("optFilter(0)"));
    EXPECT_EQ(install_.Ini("Settings.ini", "Main", "Filter"), "0");
    ASSERT_EQ(Running().Close(), 0u);
    Start();
    EXPECT_TRUE(Running().Control("optFilter(0)").Checked());
    EXPECT_TRUE(List().Find("services.exe"));
    EXPECT_TRUE(Running().Control("cmdRemove").Enabled());
    EXPECT_FALSE(Running().Control("cmdAdd").Enabled());
    ASSERT_TRUE(Running().Press("optFilter(1)"));
    EXPECT_EQ(install_.Ini("Settings.ini", "Main", "Filter"), "1");
}

TEST_F(ProcessList, RefreshShowsWhatHasStartedAndForgetsWhatHasEnded) {
    CopyFileA(SamplePath("SampleIdle.exe").c_str(), install_.Path("Passing.exe").c_str(), TRUE);
    Start();
    ASSERT_FALSE(List().Find("Passing.exe"));
    Process passing(install_.Path("Passing.exe"));
    ASSERT_TRUE(passing);
    EXPECT_FALSE(List().Find("Passing.exe"));
    ASSERT_TRUE(Running().Press("cmdRefresh"));
    EXPECT_EQ(List().Text(RowOf("Passing.exe"), 6), ListedFolder(install_.Folder() + "\\"));

    passing.End();
    ASSERT_TRUE(List().Find("Passing.exe"));
    ASSERT_TRUE(Running().Press("cmdRefresh"));
    EXPECT_FALSE(List().Find("Passing.exe"));
}

TEST_F(ProcessList, F5Refreshes) {
    Start();
    const int before = List().RowCount();
    const Process late(SamplePath("SampleIdle.exe"));
    ASSERT_TRUE(BringToFront(Running().Main()));
    PressKey(VK_F5);
    EXPECT_TRUE(WaitUntil([&] { return List().RowCount() == before + 1; }));
}

}  // namespace
}  // namespace velkarix::e2e
