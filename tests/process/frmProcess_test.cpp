#include "process/frmProcess.h"

#include "tests/process/ProcessPage.h"

namespace velkarix {
namespace {

using ProcessPageTest = ProcessPage;

TEST_F(ProcessPageTest, ShowsTheFactsOfAProcessFile) {
    Run(1234, "C:\\Tools\\Lathe.exe", std::string(1536, 'x'))
        .Created(2003, 5, 7)
        .Version({{"CompanyName", "Sample Works"},
                  {"ProductName", "Sample Suite"},
                  {"FileDescription", "Drives the lathe"}});
    program.Start();
    ASSERT_EQ(List().RowCount(), 1u);
    const ListRow& row = List().Row(0);
    EXPECT_EQ(row.Key(), "BCDE");
    const RowTexts expected = {"Lathe.exe",    "1.5",          "05/07/2003",
                               "Sample Works", "Sample Suite", "Drives the lathe",
                               "C:\\Tools\\"};
    for (std::size_t column = 0; column < expected.size(); ++column) {
        EXPECT_EQ(row.Text(column), expected[column]) << column;
    }
    EXPECT_FALSE(row.TextColor().has_value());
    EXPECT_FALSE(row.Bold());
}

TEST_F(ProcessPageTest, HidesWhatTheListsKnowAndMarksTheSuspicious) {
    Run(1, "C:\\system.exe", "abc");
    Run(2, "C:\\bad.exe", "a");
    Run(3, "C:\\unknown.exe", "b");
    program.AddInstalledFile("SystemProcess.vkl").Content(Md5OfAbc);
    program.AddInstalledFile("SusProcess.vkl").Content(Md5OfA);
    program.Start();
    EXPECT_EQ(RowNames(), (RowTexts{"bad.exe", "unknown.exe"}));
    EXPECT_EQ(RowNamed("bad.exe")->TextColor(), 255u);
    EXPECT_TRUE(RowNamed("bad.exe")->Bold());
    EXPECT_FALSE(RowNamed("unknown.exe")->TextColor().has_value());
}

TEST_F(ProcessPageTest, HidesTheSystemsFirstProcessesInTheFilteredViewAlone) {
    program.machine.AddProcess(1, "\\??\\C:\\WINDOWS\\system32\\csrss.exe");
    program.machine.AddProcess(2, "\\SystemRoot\\System32\\smss.exe");
    program.Start();
    EXPECT_EQ(List().RowCount(), 0u);
    Click("optFilter(0)");
    ASSERT_EQ(RowNames(), (RowTexts{"csrss.exe", "smss.exe"}));
    const ListRow& row = *RowNamed("smss.exe");
    EXPECT_EQ(row.Text(processColumn::Folder), "\\SystemRoot\\System32\\");
    EXPECT_EQ(row.Text(processColumn::Size), "");
    EXPECT_EQ(row.Image(), 1u);
}

TEST_F(ProcessPageTest, JudgesAndMarksNothingInTheViewOfAll) {
    Run(2, "C:\\bad.exe", "a");
    program.AddInstalledFile("SusProcess.vkl").Content(Md5OfA);
    ShowAll();
    program.Start();
    EXPECT_EQ(RowNames(), (RowTexts{"bad.exe"}));
    EXPECT_FALSE(List().Row(0).TextColor().has_value());
    EXPECT_EQ(program.machine.Journal().CountOf("CryptCreateHash"), 0u);
}

TEST_F(ProcessPageTest, BuildsTheListTwiceAndWritesTheSettingBackWhenItStartsWithAll) {
    ShowAll();
    program.Start();
    EXPECT_EQ(program.machine.Journal().CountOf("EnumProcesses"), 2u);
    EXPECT_EQ(program.machine.Journal().CountOf("WritePrivateProfileStringA"), 1u);
    EXPECT_EQ(program.application.settings.ReadIni("Main", "Filter", "?"), "0");
}

TEST_F(ProcessPageTest, TakesAnythingButOneForAll) {
    Settings("[Main]\r\nFilter=filtered\r\n");
    program.Start();
    EXPECT_TRUE(program.Get<OptionButton>("frmProcess", "optFilter(0)").Chosen());
    EXPECT_FALSE(Enabled("cmdAdd"));
    EXPECT_TRUE(Enabled("cmdRemove"));
}

TEST_F(ProcessPageTest, StartsFilteredWithRemovingDisabled) {
    program.Start();
    EXPECT_TRUE(program.Get<OptionButton>("frmProcess", "optFilter(1)").Chosen());
    EXPECT_TRUE(Enabled("cmdAdd"));
    EXPECT_FALSE(Enabled("cmdRemove"));
    EXPECT_EQ(program.machine.Journal().CountOf("EnumProcesses"), 1u);
}

TEST_F(ProcessPageTest, ChangesTheFilterWritesItAndListsAnew) {
    Run(1, "C:\\system.exe", "abc");
    program.AddInstalledFile("SystemProcess.vkl").Content(Md5OfAbc);
    program.Start();
    EXPECT_EQ(List().RowCount(), 0u);
    Click("optFilter(0)");
    EXPECT_EQ(List().RowCount(), 1u);
    EXPECT_FALSE(Enabled("cmdAdd"));
    EXPECT_TRUE(Enabled("cmdRemove"));
    EXPECT_EQ(program.InstalledText("Settings.ini"), "[Main]\r\nFilter=0\r\n");
    Click("optFilter(1)");
    EXPECT_EQ(List().RowCount(), 0u);
    EXPECT_TRUE(Enabled("cmdAdd"));
    EXPECT_FALSE(Enabled("cmdRemove"));
    EXPECT_EQ(program.InstalledText("Settings.ini"), "[Main]\r\nFilter=1\r\n");
}

TEST_F(ProcessPageTest, MakesTheBackupFolderOnlyWhenItIsMissing) {
    program.Start();
    EXPECT_TRUE(program.machine.disk.Exists("C:\\Velkarix\\backup"));
    LeaveAndComeBack();
    EXPECT_EQ(program.machine.Journal().CountOf("CreateDirectoryA"), 1u);
}

TEST_F(ProcessPageTest, SortsByNameAndSelectsTheFirstRow) {
    Run(1, "C:\\zebra.exe", "1");
    Run(2, "C:\\Apple.exe", "2");
    program.Start();
    EXPECT_EQ(RowNames(), (RowTexts{"Apple.exe", "zebra.exe"}));
    ASSERT_NE(List().SelectedRow(), nullptr);
    EXPECT_EQ(List().SelectedRow()->Text(0), "Apple.exe");
}

TEST_F(ProcessPageTest, TurnsTheSortOrderRoundAtEachHeaderClick) {
    Run(1, "C:\\a.exe", "1");
    Run(2, "C:\\b.exe", "22");
    program.Start();
    List().UserColumnClick(1);
    EXPECT_EQ(RowNames(), (RowTexts{"b.exe", "a.exe"}));
    List().UserColumnClick(7);
    EXPECT_EQ(List().SortKey(), 6u);
    EXPECT_EQ(List().Order(), SortOrder::Ascending);
}

TEST_F(ProcessPageTest, KeepsItsSortWhenItRefreshes) {
    Run(1, "C:\\a.exe", "1");
    program.Start();
    List().UserColumnClick(1);
    Run(2, "C:\\b.exe", "2");
    Click("cmdRefresh");
    EXPECT_EQ(RowNames(), (RowTexts{"b.exe", "a.exe"}));
}

TEST_F(ProcessPageTest, KeepsSelectionAndSortOnAClickOnItsOwnPageButton) {
    Run(1, "C:\\a.exe", "1");
    Run(2, "C:\\b.exe", "2");
    program.Start();
    List().UserColumnClick(1);
    List().UserSelect(RowNamed("a.exe"));
    program.Get<Button>("frmMain", "cmdProcess").Raise("Click");
    EXPECT_EQ(List().SelectedRow(), RowNamed("a.exe"));
    EXPECT_EQ(List().Order(), SortOrder::Descending);
}

TEST_F(ProcessPageTest, TellsTwoProcessesOfOneFileApartByTheirKeys) {
    Run(1, "C:\\a.exe", "1");
    Run(23, "C:\\a.exe", "1");
    program.Start();
    ASSERT_EQ(List().RowCount(), 2u);
    EXPECT_NE(List().Row(0).Key(), List().Row(1).Key());
    EXPECT_EQ(program.machine.Journal().CountOf("CryptCreateHash"), 1u);
}

TEST_F(ProcessPageTest, HashesNothingTwiceAlsoWhenItIsLeftAndEntered) {
    Run(1, "C:\\a.exe", "1");
    program.Start();
    Click("cmdRefresh");
    LeaveAndComeBack();
    EXPECT_EQ(program.machine.Journal().CountOf("CryptCreateHash"), 1u);
    EXPECT_EQ(List().RowCount(), 1u);
}

TEST_F(ProcessPageTest, ShowsAFilesOwnIconOrTheStockOne) {
    const Picture large{32, 32, std::vector<std::uint32_t>(1024, 0xFF00FF00)};
    const Picture small{16, 16, std::vector<std::uint32_t>(256, 0xFFFF0000)};
    Run(1, "C:\\with.exe", "1").Icon(0, large, small);
    Run(2, "C:\\without.exe", "2");
    program.Start();
    const ImageList& images = *List().Images();
    EXPECT_EQ(std::get<Picture>(images.At(RowNamed("with.exe")->Image())), small);
    EXPECT_EQ(RowNamed("without.exe")->Image(), 1u);
    EXPECT_EQ(std::get<StockPicture>(images.At(1)).name, "Software");
    EXPECT_EQ(program.machine.shell.OpenIconCount(), 0u);
}

TEST_F(ProcessPageTest, StartsItsPicturesAnewWithEachList) {
    Run(1, "C:\\with.exe", "1").Icon(0, {1, 1, {0}}, {1, 1, {0}});
    program.Start();
    for (int i = 0; i < 5; ++i) Click("cmdRefresh");
    EXPECT_EQ(List().Images()->Count(), 2u);
}

TEST_F(ProcessPageTest, ShowsAnEntryWithoutAPathInTheViewOfAll) {
    program.machine.AddProcess(5, "C:\\a.exe");
    program.machine.FailAlways("GetModuleFileNameExA");
    ShowAll();
    program.Start();
    EXPECT_EQ(RowNames(), (RowTexts{""}));
    EXPECT_EQ(List().Row(0).Image(), 1u);
}

TEST_F(ProcessPageTest, SurvivesAProcessThatEndsBetweenListingAndOpening) {
    Run(1, "C:\\stays.exe", "1");
    Run(2, "C:\\goes.exe", "2");
    program.machine.processes.Add(3, "C:\\ends.exe").EndsBeforeOpening();
    program.machine.disk.Remove("C:\\goes.exe");
    program.Start();
    EXPECT_EQ(RowNames(), (RowTexts{"goes.exe", "stays.exe"}));
    EXPECT_EQ(RowNamed("goes.exe")->Text(processColumn::Size), "");
}

TEST_F(ProcessPageTest, OffersFolderAndDeletionOnlyWhereTheyExist) {
    Run(1, "C:\\Tools\\here.exe", "1");
    program.machine.AddProcess(2, "C:\\Tools\\gone.exe");
    program.machine.AddProcess(3, "Q:\\nowhere\\lost.exe");
    program.Start();
    List().UserSelect(RowNamed("here.exe"));
    EXPECT_TRUE(Enabled("cmdOpen"));
    EXPECT_TRUE(Enabled("cmdDelete"));
    List().UserSelect(RowNamed("gone.exe"));
    EXPECT_TRUE(Enabled("cmdOpen"));
    EXPECT_FALSE(Enabled("cmdDelete"));
    List().UserSelect(RowNamed("lost.exe"));
    EXPECT_FALSE(Enabled("cmdOpen"));
    EXPECT_FALSE(Enabled("cmdDelete"));
}

TEST_F(ProcessPageTest, SetsItsButtonsByTheFirstRowOfANewList) {
    program.machine.AddProcess(3, "Q:\\nowhere\\lost.exe");
    program.Start();
    EXPECT_FALSE(Enabled("cmdOpen"));
    EXPECT_FALSE(Enabled("cmdDelete"));
}

TEST_F(ProcessPageTest, LeavesItsButtonsAsTheyWereWhenTheListIsEmpty) {
    program.machine.AddProcess(3, "Q:\\nowhere\\lost.exe");
    program.Start();
    program.machine.processes.End(3);
    Click("cmdRefresh");
    EXPECT_EQ(List().RowCount(), 0u);
    EXPECT_FALSE(Enabled("cmdOpen"));
}

TEST_F(ProcessPageTest, RunsOnEachSystemByTheMethodOfItsName) {
    for (const NamedSystem system : allNamedSystems) {
        TestProgram other(system);
        other.machine.AddProcess(7, "C:\\WINDOWS\\a.exe");
        other.Start();
        const bool bySnapshot = FamilyOf(system) == Family::Windows95;
        EXPECT_EQ(other.machine.Journal().CountOf("CreateToolhelp32Snapshot"), bySnapshot ? 1u : 0u)
            << other.application.WindowsName;
        EXPECT_EQ(other.machine.Journal().CountOf("EnumProcesses"), bySnapshot ? 0u : 1u);
        EXPECT_EQ(other.Get<ListView>("frmProcess", "lstvProcess").RowCount(), 1u);
    }
}

TEST_F(ProcessPageTest, RefreshesByKey) {
    program.Start();
    Run(1, "C:\\new.exe", "1");
    EXPECT_TRUE(Page().RaiseKey({Key::F5}));
    EXPECT_EQ(List().RowCount(), 1u);
}

TEST_F(ProcessPageTest, ReportsByKeyAndDeletesByKeyWhereTheListHasTheFocus) {
    Run(1, "C:\\one.exe", "1");
    program.Start();
    EXPECT_TRUE(Page().RaiseKey({Key::P, true}));
    EXPECT_EQ(program.desktop.saveRequests.size(), 1u);
    EXPECT_FALSE(Page().RaiseKey({Key::Delete}, Page().Find("cmdKill")));
    EXPECT_TRUE(program.desktop.messages.empty());
    EXPECT_TRUE(Page().RaiseKey({Key::Delete}, &List()));
    ASSERT_EQ(program.desktop.messages.size(), 1u);
    EXPECT_EQ(program.desktop.messages[0].buttons, MessageButtons::YesNo);
}

TEST_F(ProcessPageTest, DeletesNothingByKeyWhileTheCommandIsDisabled) {
    Run(1, "C:\\one.exe", "1");
    program.Start();
    program.machine.disk.Remove("C:\\one.exe");
    List().UserSelect(&List().Row(0));
    EXPECT_FALSE(Page().RaiseKey({Key::Delete}, &List()));
    EXPECT_TRUE(program.desktop.messages.empty());
}

}  // namespace
}  // namespace velkarix
