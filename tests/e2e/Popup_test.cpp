// The popup menu of the process list: how it opens, which entries are grey, what they run.
#include "Input.h"
#include "MenuWindow.h"
#include "ProgramTest.h"
#include "Setup.h"
#include "Wait.h"

namespace velkarix::e2e {
namespace {

using Entries = std::vector<std::string>;

class Popup : public ProgramTest {
  protected:
    Popup() { Start(); }
    void RightClick(const std::string& name) {
        SelectRow(name);
        ClickAt(Inside(List().LabelArea(RowOf(name))), Mouse::Right);
    }
    Window Menu() { return WaitForPopup(Running().Id()); }
    // The entry that needs the folder of the row's file.
    static std::string OpenFolderEntry() {
        return ListsFolders() ? "&Open Folder" : "(&Open Folder)";
    }
};

TEST_F(Popup, ARightClickOffersAddingInFiltered) {
    RightClick("SampleIdle.exe");
    const Window popup = Menu();
    EXPECT_EQ(
        EntryCaptions(popup),
        (Entries{"&Add Checked to Safe list", "(&Remove checked from Safe list)", "-",
                 "&Kill Process", "&Delete Process", "-", "&View Information", "&Generate Report",
                 "-", OpenFolderEntry(), "&Refresh", "-", "&Search Google"}));
    EXPECT_TRUE(ClosePopup(popup));
}

TEST_F(Popup, ARightClickOffersRemovingInAll) {
    ASSERT_TRUE(Running().Press("optFilter(0)"));
    RightClick("SampleIdle.exe");
    const Window popup = Menu();
    const Entries entries = EntryCaptions(popup);
    ASSERT_EQ(entries.size(), 13u);
    EXPECT_EQ(entries[0], "(&Add Checked to Safe list)");
    EXPECT_EQ(entries[1], "&Remove checked from Safe list");
    EXPECT_TRUE(ClosePopup(popup));
}

TEST_F(Popup, ARightClickSelectsTheRowUnderIt) {
    SelectRow("SampleSafe.exe");
    ClickAt(Inside(List().LabelArea(RowOf("SampleIdle.exe"))), Mouse::Right);
    const Window popup = Menu();
    ASSERT_TRUE(popup);
    EXPECT_EQ(List().Selected(), RowOf("SampleIdle.exe"));
    EXPECT_TRUE(ClosePopup(popup));
}

TEST_F(Popup, AFileThatIsGoneGreysWhatNeedsIt) {
    // Copied, started and renamed away under the program's feet.
    const std::string file = install_.Path("Going.exe");
    CopyFileA(SamplePath("SampleIdle.exe").c_str(), file.c_str(), TRUE);
    const Process going(file);
    ASSERT_TRUE(going);
    ASSERT_TRUE(Running().Press("cmdRefresh"));
    SelectRow("Going.exe");
    ASSERT_TRUE(Running().Control("cmdDelete").Enabled());
    SelectRow("SampleIdle.exe");
    ASSERT_TRUE(MoveFileA(file.c_str(), install_.Path("Other.exe").c_str()));
    RightClick("Going.exe");
    const Window popup = Menu();
    const Entries entries = EntryCaptions(popup);
    ASSERT_EQ(entries.size(), 13u);
    EXPECT_EQ(entries[4], "(&Delete Process)");
    EXPECT_EQ(entries[9], OpenFolderEntry());
    EXPECT_TRUE(ClosePopup(popup));
    EXPECT_FALSE(Running().Control("cmdDelete").Enabled());
    EXPECT_EQ(Running().Control("cmdOpen").Enabled(), ListsFolders());
}

TEST_F(Popup, TheMenuKeyOpensItBesideTheRow) {
    SelectRow("SampleIdle.exe");
    PressKey(VK_APPS);
    const Window popup = Menu();
    ASSERT_TRUE(popup);
    const RECT row = List().RowArea(RowOf("SampleIdle.exe"));
    EXPECT_GE(popup.Area().top, row.top);
    EXPECT_LE(popup.Area().top, row.bottom + 4);
    EXPECT_TRUE(ClosePopup(popup));
}

TEST_F(Popup, ShiftF10OpensIt) {
    SelectRow("SampleIdle.exe");
    PressKey(VK_F10, {VK_SHIFT});
    const Window popup = Menu();
    ASSERT_TRUE(popup);
    EXPECT_EQ(EntryCaptions(popup).size(), 13u);
    EXPECT_TRUE(ClosePopup(popup));
}

TEST_F(Popup, TheEntryRefreshRuns) {
    const int before = List().RowCount();
    RightClick("SampleIdle.exe");
    const Process late(SamplePath("SampleIdle.exe"));
    ASSERT_TRUE(ChooseEntry(Menu(), "&Refresh"));
    EXPECT_TRUE(WaitUntil([&] { return List().RowCount() == before + 1; }));
}

TEST_F(Popup, TheEntryViewInformationRuns) {
    RightClick("SampleIdle.exe");
    ASSERT_TRUE(ChooseEntry(Menu(), "&View Information"));
    const Window dialog = Running().Dialog("frmviewInfo");
    ASSERT_TRUE(dialog);
    EXPECT_EQ(dialog.Find("txtName").Text(), "SampleIdle.exe");
    EXPECT_TRUE(dialog.Find("cmdOk").Click());
}

TEST_F(Popup, TheEntrySearchGoogleRuns) {
    RightClick("SampleSuspect.exe");
    ASSERT_TRUE(ChooseEntry(Menu(), "&Search Google"));
    EXPECT_NE(Opened().find("search?q=SampleSuspect.exe+Sample+Works"), std::string::npos);
}

TEST_F(Popup, AnAccessKeyRunsItsEntry) {
    RightClick("SampleIdle.exe");
    ASSERT_TRUE(Menu());
    PressKey('V');
    const Window dialog = Running().Dialog("frmviewInfo");
    ASSERT_TRUE(dialog);
    EXPECT_TRUE(dialog.Find("cmdOk").Click());
}

}  // namespace
}  // namespace velkarix::e2e
