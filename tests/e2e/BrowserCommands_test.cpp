// What can be done with a row of the browser's lists: popups, information, folder, web search.
#include <algorithm>

#include "AskInside.h"
#include "BrowserRows.h"
#include "BrowserTest.h"
#include "FolderWindow.h"
#include "Input.h"
#include "MenuWindow.h"
#include "Samples.h"
#include "Setup.h"
#include "Wait.h"

namespace velkarix::e2e {
namespace {

using Entries = std::vector<std::string>;

// A row whose file exists, and one whose file doesn't.
struct TwoRows {
    const BrowserList& list;
    std::string withFile;
    std::string withoutFile;
    const char* file;  // of the first one
};

const std::vector<TwoRows> ListsOfFiles = {
    {BHOs, Clsid("0B100001"), Clsid("0B100006"), "SampleHelper.dll"},
    {Toolbars, Clsid("7B000001"), Clsid("7B000004"), "SampleToolbar.dll"},
    {Buttons, Clsid("B0770001"), Clsid("B0770004"), "SampleIdle.exe"},
    {Menus, "&Sample Search", "Translate with Sample", "SampleMenu.htm"},
    {Protocols, "sample", "sample-file", "SampleProtocol.dll"},
    {Hooks, Clsid("400C0001"), Clsid("400C0003"), "SampleHook.dll"},
};

class BrowserCommands : public BrowserTest {
  protected:
    BrowserCommands() { OpenBrowser(); }
    void SelectText(const BrowserList& list, const std::string& text) {
        const ListWindow window = Show(list);
        const std::optional<int> row = window.Find(text);
        ASSERT_TRUE(row) << text;
        SelectRow(window, *row);
    }
    void RightClick(const BrowserList& list, const std::string& text) {
        SelectText(list, text);
        const ListWindow window = Running().List(list.list);
        ClickAt(Inside(window.LabelArea(*window.Selected())), Mouse::Right);
    }
    // The entries of the popup that has been opened; it is closed then.
    Entries PopupEntries() {
        const Window popup = WaitForPopup(Running().Id());
        EXPECT_TRUE(popup);
        const Entries entries = EntryCaptions(popup);
        EXPECT_TRUE(ClosePopup(popup));
        return entries;
    }
    static Entries EntriesFor(const std::string& what, bool fileExists) {
        return {"&Disable Checked " + what,
                "&Enable Checked " + what,
                "-",
                "&Delete Selected " + what,
                "-",
                "&View Information",
                "&Generate Report",
                "-",
                fileExists ? "&Open Folder" : "(&Open Folder)",
                "&Refresh",
                "-",
                "&Search Google"};
    }
    Window OpenInformation(const BrowserList& list) {
        EXPECT_TRUE(Running().Control(list.view).Click());
        return Running().Dialog("frmviewInfo");
    }
    void CloseInformation(const Window& dialog) {
        EXPECT_TRUE(dialog.Find("cmdOk").Click());
        EXPECT_TRUE(WaitUntil([&] { return !dialog && Running().Main().Enabled(); }));
    }
    static std::string SearchFor(const std::string& text) {
        return "\"http://www.google.com/search?q=" + text + "\"";
    }
};

TEST_F(BrowserCommands, EachPopupOffersTheCommandsOfItsList) {
    const std::pair<const BrowserList*, const char*> names[] = {
        {&BHOs, "BHO"},           {&Toolbars, "Toolbar"}, {&Buttons, "Button"},
        {&Protocols, "Protocol"}, {&Hooks, "Hook"},
    };
    for (const auto& [list, what] : names) {
        RightClick(*list, RowsOf(*list).at(0).texts[0]);
        EXPECT_EQ(PopupEntries(), EntriesFor(what, true));
    }
    RightClick(Menus, "&Sample Search");
    EXPECT_EQ(PopupEntries(), (Entries{"&Disable Checked Menu", "&Enable Checked Menu", "-",
                                       "&Delete Selected Menu", "-", "&Generate Report", "-",
                                       "&Open Folder", "&Refresh"}));
    RightClick(Domains, "*.ads.example");
    EXPECT_EQ(PopupEntries(), (Entries{"&Disable Checked Domain", "&Enable Checked Domain", "-",
                                       "&Delete Selected Domain", "-", "&Check All", "&Uncheck All",
                                       "-", "&Generate Report", "-", "&Refresh"}));
}

TEST_F(BrowserCommands, WhereTheFileIsGoneTheFolderCannotBeOpened) {
    for (const TwoRows& each : ListsOfFiles) {
        RightClick(each.list, each.withFile);
        EXPECT_EQ(std::ranges::count(PopupEntries(), "&Open Folder"), 1) << each.withFile;
        EXPECT_TRUE(Running().Control(each.list.folder).Enabled()) << each.list.folder;
        RightClick(each.list, each.withoutFile);
        EXPECT_EQ(std::ranges::count(PopupEntries(), "(&Open Folder)"), 1) << each.withoutFile;
        EXPECT_FALSE(Running().Control(each.list.folder).Enabled()) << each.list.folder;
        SelectText(each.list, each.withFile);
        EXPECT_TRUE(WaitUntil([&] { return Running().Control(each.list.folder).Enabled(); }));
    }
}

TEST_F(BrowserCommands, ARightClickWithoutASelectedRowOpensNoPopup) {
    for (const BrowserList* each : BrowserLists) {
        const ListWindow list = Show(*each);
        ASSERT_TRUE(Running().Press(each->refresh));
        BringToFront(Running().Main());
        const RECT area = Window(list).Area();
        ClickAt({area.right - 40, area.bottom - 40}, Mouse::Right);
        // The next click is only answered once that one is.
        SelectRow(list, 0);
        EXPECT_TRUE(std::ranges::none_of(TopWindows(Running().Id()), [](const Window& window) {
            return window.Class() == "#32768";
        })) << each->list;
    }
}

TEST_F(BrowserCommands, TheMenuKeyOpensThePopup) {
    for (const BrowserList* each : BrowserLists) {
        SelectText(*each, RowsOf(*each).at(0).texts[0]);
        PressKey(VK_APPS);
        EXPECT_GE(PopupEntries().size(), 9u) << each->list;
    }
}

TEST_F(BrowserCommands, ThePopupsFirstEntriesDisableAndEnable) {
    for (const SampleItem& item : SampleItems) {
        Show(item.list);
        for (const bool enabled : {true, false}) {
            TickItem(item, enabled);
            SelectItem(item, enabled);
            PressKey(VK_APPS);
            const Window popup = WaitForPopup(Running().Id());
            const Entries entries = EntryCaptions(popup);
            ASSERT_GE(entries.size(), 2u) << item;
            ASSERT_TRUE(ChooseEntry(popup, entries[enabled ? 0 : 1]));
            ASSERT_TRUE(WaitUntil([&] { return IsListed(item, !enabled); })) << item;
            EXPECT_FALSE(ReadItem(item, enabled)) << item;
        }
    }
    EXPECT_EQ(ReadPlaces(), PlacesBefore());
}

TEST_F(BrowserCommands, ViewInformationShowsTheFileOfTheRow) {
    for (const TwoRows& each : ListsOfFiles) {
        if (each.list.view == nullptr) continue;
        SelectText(each.list, each.withFile);
        const Window dialog = OpenInformation(each.list);
        ASSERT_TRUE(dialog);
        const std::string path = SamplePath(each.file);
        const ListWindow list = Running().List(each.list.list);
        const std::string name =
            &each.list == &Protocols ? list.Text(*list.Selected(), 1) : each.withFile;
        const RowTexts shown = ShownFacts(path);
        const RowTexts version = VersionFacts(path);
        const std::pair<const char*, std::string> fields[] = {
            {"lblName", each.file + (" " + name)},
            {"txtName", each.file + (" " + name)},
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
        for (const auto& [field, text] : fields) {
            EXPECT_EQ(dialog.Find(field).Text(), text) << field;
        }
        EXPECT_EQ(AskInside(dialog, CutTextsQuestion), "");
        CloseInformation(dialog);
    }
}

TEST_F(BrowserCommands, ViewInformationOpensForAFileThatIsGone) {
    SelectText(BHOs, Clsid("0B100006"));
    const Window dialog = OpenInformation(BHOs);
    ASSERT_TRUE(dialog);
    EXPECT_EQ(dialog.Find("txtName").Text(), "Bookmarks.dll " + Clsid("0B100006"));
    EXPECT_EQ(dialog.Find("txtPath").Text(), "C:\\Program Files\\Sample Bookmarks\\Bookmarks.dll");
    EXPECT_EQ(dialog.Find("txtDescription").Text(), "");
    CloseInformation(dialog);
}

TEST_F(BrowserCommands, OpenFolderShowsTheFolderOfTheFile) {
    for (const TwoRows& each : ListsOfFiles) {
        SelectText(each.list, each.withFile);
        ASSERT_TRUE(Running().Press(each.list.folder));
        EXPECT_TRUE(FolderIsShown("Samples")) << each.list.list;
    }
}

TEST_F(BrowserCommands, ADoubleClickSearchesTheWebForTheClass) {
    for (const TwoRows& each : ListsOfFiles) {
        if (each.list.view == nullptr) continue;
        SelectText(each.list, each.withFile);
        ForgetOpened();
        const ListWindow list = Running().List(each.list.list);
        const int row = *list.Selected();
        DoubleClickAt(Inside(list.LabelArea(row)));
        const std::string text = list.Text(row, &each.list == &Protocols ? 1 : 0);
        const std::string opened = Opened();
        EXPECT_NE(opened.find(SearchFor(text)), std::string::npos) << opened;
    }
}

TEST_F(BrowserCommands, ThePopupsEntrySearchesTheWebForTheClass) {
    RightClick(Hooks, Clsid("400C0003"));
    ASSERT_TRUE(ChooseEntry(WaitForPopup(Running().Id()), "&Search Google"));
    EXPECT_NE(Opened().find(SearchFor(Clsid("400C0003"))), std::string::npos);
}

TEST_F(BrowserCommands, ADoubleClickOnMenusAndDomainsSearchesNothing) {
    for (const BrowserList* each : {&Menus, &Domains}) {
        const ListWindow list = Show(*each);
        SelectRow(list, 0);
        DoubleClickAt(Inside(list.LabelArea(0)));
        SelectRow(list, 1);  // answered after the double click
    }
    // A search that had been asked for would have been written down before this one.
    SelectText(BHOs, Clsid("0B100001"));
    const ListWindow list = Running().List("lstvBHO");
    DoubleClickAt(Inside(list.LabelArea(0)));
    const std::string opened = Opened();
    EXPECT_EQ(opened.find("search?q="), opened.rfind("search?q=")) << opened;
}

}  // namespace
}  // namespace velkarix::e2e
