// What can be done with a row of the startup list: popup, information, folder.
#include <algorithm>

#include "AskInside.h"
#include "FolderWindow.h"
#include "Input.h"
#include "MenuWindow.h"
#include "Samples.h"
#include "Setup.h"
#include "StartupTest.h"
#include "Wait.h"

namespace velkarix::e2e {
namespace {

using Entries = std::vector<std::string>;

class StartupCommands : public StartupTest {
  protected:
    StartupCommands() { OpenStartup(); }
    const StartupItem withFile_ = MakeStartupItem("", "Sample Search Loader", "HKLM\\Run");
    const StartupItem withoutFile_ = MakeStartupItem("", "Sample Volume", "HKLM\\Run");
    const StartupItem shortcut_ = MakeStartupItem("", "Sample Notes.lnk", "Startup CU");

    Window OpenPopup(const StartupItem& item) {
        SelectItem(item, true);
        ClickAt(Inside(Items().LabelArea(RowOfItem(item, true))), Mouse::Right);
        return WaitForPopup(Running().Id());
    }
    Window OpenInformation() {
        EXPECT_TRUE(Running().Control("cmdViewInformation").Click());
        return Running().Dialog("frmviewInfo");
    }
    void CloseInformation(const Window& dialog) {
        EXPECT_TRUE(dialog.Find("cmdOk").Click());
        EXPECT_TRUE(WaitUntil([&] { return !dialog && Running().Main().Enabled(); }));
    }
    bool FolderOffered() { return Running().Control("cmdFolder").Enabled(); }
};

// The entry that opens the folder is grey for every row, the button is for those without a file.
TEST_F(StartupCommands, ThePopupOffersTheCommandsOfTheList) {
    for (const StartupItem& item : {withFile_, withoutFile_, shortcut_}) {
        const Window popup = OpenPopup(item);
        ASSERT_TRUE(popup);
        EXPECT_EQ(EntryCaptions(popup),
                  (Entries{"&Disabled Checked Items", "&Enable Checked Items", "-",
                           "Delete &Selected item", "-", "&View Information", "&Generate Report",
                           "-", "(&Open Folder)", "&Refresh"}));
        EXPECT_TRUE(ClosePopup(popup));
        EXPECT_EQ(FolderOffered(), item.name != withoutFile_.name) << item.name;
    }
}

TEST_F(StartupCommands, ThePopupsEntriesDisableAndEnable) {
    for (const StartupItem& item : {withFile_, shortcut_}) {
        const std::optional<RegistryValue> whole = ReadItem(item, true);
        TickItem(item, true);
        ASSERT_TRUE(ChooseEntry(OpenPopup(item), "&Disabled Checked Items"));
        ASSERT_TRUE(WaitUntil([&] { return IsListed(item, false); })) << item.name;
        EXPECT_EQ(ReadItem(item, false), whole);
        TickItem(item, false);
        SelectItem(item, false);
        PressKey(VK_APPS);
        ASSERT_TRUE(ChooseEntry(WaitForPopup(Running().Id()), "&Enable Checked Items"));
        ASSERT_TRUE(WaitUntil([&] { return IsListed(item, true); })) << item.name;
    }
    EXPECT_EQ(ReadState(), StateBefore());
}

TEST_F(StartupCommands, ThePopupsEntryDeletesTheSelectedItem) {
    ASSERT_TRUE(ChooseEntry(OpenPopup(withFile_), "Delete &Selected item"));
    ASSERT_TRUE(Answer(Running().Message(), IDYES));
    EXPECT_TRUE(WaitUntil([this] { return !IsListed(withFile_, true); }));
}

TEST_F(StartupCommands, ARightClickWithoutASelectedRowOpensNoPopup) {
    ShowNode(StartupNodes[6]);
    ASSERT_FALSE(Items().Selected());
    const RECT area = Window(Items()).Area();
    ClickAt({area.right - 40, area.bottom - 40}, Mouse::Right);
    // The next click is only answered once that one is.
    SelectRow(Items(), 0);
    EXPECT_TRUE(std::ranges::none_of(TopWindows(Running().Id()), [](const Window& window) {
        return window.Class() == "#32768";
    }));
}

TEST_F(StartupCommands, ViewInformationShowsTheFileOfTheRow) {
    const std::string path = SamplePath("SampleSuspect.exe");
    SelectItem(withFile_, true);
    const Window dialog = OpenInformation();
    ASSERT_TRUE(dialog);
    const RowTexts shown = ShownFacts(path);
    const RowTexts version = VersionFacts(path);
    const std::pair<const char*, std::string> fields[] = {
        {"lblName", "Sample Search Loader (SampleSuspect.exe)"},
        {"txtName", "Sample Search Loader (SampleSuspect.exe)"},
        {"txtPath", path},
        {"lblSize(1)", shown[0]},
        {"lblCreatedOn(1)", shown[1]},
        {"lblVersion(1)", version[3]},
        {"txtProductName", version[0]},
        {"txtDescription", version[2]},
        {"txtInternalName", version[4]},
        {"txtOriginalName", version[5]},
        {"txtComments", version[6]},
        {"txtCompanyname", version[7]},
    };
    for (const auto& [field, text] : fields) EXPECT_EQ(dialog.Find(field).Text(), text) << field;
    EXPECT_EQ(AskInside(dialog, CutTextsQuestion), "");
    CloseInformation(dialog);
}

TEST_F(StartupCommands, ViewInformationOpensForAnItemWithoutAFile) {
    SelectItem(withoutFile_, true);
    const Window dialog = OpenInformation();
    ASSERT_TRUE(dialog);
    EXPECT_EQ(dialog.Find("txtName").Text(), "Sample Volume");
    EXPECT_EQ(dialog.Find("txtPath").Text(), "");
    CloseInformation(dialog);
}

TEST_F(StartupCommands, OpenFolderShowsTheFolderOfTheFile) {
    for (const StartupItem& item : {withFile_, shortcut_}) {
        SelectItem(item, true);
        ASSERT_TRUE(Running().Press("cmdFolder"));
        EXPECT_TRUE(FolderIsShown("Samples")) << item.name;
    }
}

TEST_F(StartupCommands, ADoubleClickSearchesNothing) {
    SelectItem(withFile_, true);
    DoubleClickAt(Inside(Items().LabelArea(RowOfItem(withFile_, true))));
    SelectItem(shortcut_, true);  // answered after the double click
    // A search that had been asked for would have been written down before this one.
    ASSERT_TRUE(Running().Press("cmdProcess"));
    SelectRow("SampleIdle.exe");
    DoubleClickAt(Inside(List().LabelArea(RowOf("SampleIdle.exe"))));
    const std::string opened = Opened();
    EXPECT_NE(opened.find("search?q=SampleIdle.exe"), std::string::npos) << opened;
    EXPECT_EQ(opened.find("search?q="), opened.rfind("search?q=")) << opened;
}

}  // namespace
}  // namespace velkarix::e2e
