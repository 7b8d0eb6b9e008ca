// What the user does with a row of the browser page's lists: information, folder, search, menu.
#include "tests/browser/ItemLists.h"

namespace velkarix {
namespace {

class ItemGestures : public ItemListPage, public testing::WithParamInterface<const ListCase*> {
  protected:
    // The item A, whose file there is, and the item B, whose file there isn't, where the list
    // shows one.
    void OpenWithTwo() {
        PutClasses(Machine());
        Put(list, place, true, "AB");
        Machine().AddFile(ItemFile).Content(std::string(2048, 'x'));
        const std::string name = ItemName(list, 'B');
        const std::string key = std::string(place.live) + "\\" + name;
        for (const std::string& clsid : {name, std::string("{60BE}")}) {
            SetValue(Hive::ClassesRoot, "CLSID\\" + clsid + "\\InprocServer32", "", Gone);
        }
        if (!list.values) {
            for (const char* value : {"", "Script"}) SetValue(place.hive, key, value, Gone);
            SetValue(place.hive, key, "CLSID", "{60BE}");
        }
        Open();
    }
    void Select(char letter) { SelectItem(list, place, true, letter); }
    const std::vector<ShellOpening>& Opened() { return Machine().shell.Opened(); }

    static constexpr const char* Gone = "C:\\Gone\\away.dll";
    const ListCase& list = *GetParam();
    const PlaceCase& place = list.places[0];
};

class ItemsWithFiles : public ItemGestures {};

TEST_P(ItemsWithFiles, ShowTheRowsFileInItsFolder) {
    OpenWithTwo();
    Machine().AddFile("C:\\WINDOWS\\explorer.exe");
    Select('A');
    Click(list.folder);
    ASSERT_EQ(Opened().size(), 1u);
    EXPECT_EQ(Opened()[0], (ShellOpening{program.application.MainWindow(), "Open", "explorer.exe",
                                         "/select,C:\\Some Tools\\item.dll", "", 1}));
}

TEST_P(ItemsWithFiles, ShowNoFolderOfAFileThatIsGoneOrWithoutASelectedRow) {
    OpenWithTwo();
    Select('B');
    Page().Run(std::string(list.folder) + "_Click");  // by the menu, say
    ListOf(list).UserSelect(nullptr);
    Page().Run(std::string(list.folder) + "_Click");
    EXPECT_TRUE(Opened().empty());
    EXPECT_EQ(Messages(), RowTexts());
}

TEST_P(ItemsWithFiles, EnableTheFolderButtonByTheRowThatIsClicked) {
    OpenWithTwo();
    Select('B');
    EXPECT_FALSE(Enabled(list.folder));
    Select('A');
    EXPECT_TRUE(Enabled(list.folder));
    if (list.view == nullptr) return;
    Select('B');
    EXPECT_TRUE(Enabled(list.view));
}

TEST_P(ItemsWithFiles, EnableTheMenusOpenEntryByTheSelectedRow) {
    OpenWithTwo();
    for (const char letter : {'B', 'A'}) {
        Select(letter);
        ListOf(list).UserMouseUp(MouseButton::Right);
        ASSERT_FALSE(program.desktop.menus.empty());
        const MenuEntry* entry = program.desktop.menus.back().menu.Find(list.openEntry);
        ASSERT_NE(entry, nullptr);
        EXPECT_EQ(entry->enabled, letter == 'A');
    }
}

TEST_P(ItemGestures, PopUpTheMenuOfTheList) {
    OpenWithTwo();
    Select('A');
    ListOf(list).UserMouseUp(MouseButton::Right);
    ASSERT_EQ(program.desktop.menus.size(), 1u);
    EXPECT_EQ(program.desktop.menus[0].menu.name, list.menu);
    EXPECT_EQ(program.desktop.menus[0].owner, "frmIE");
}

TEST_P(ItemGestures, PopUpNoMenuWithoutASelectedRowOrForAnotherButton) {
    OpenWithTwo();
    Select('A');
    ListOf(list).UserMouseUp(MouseButton::Left);
    ListOf(list).UserSelect(nullptr);
    ListOf(list).UserMouseUp(MouseButton::Right);
    EXPECT_TRUE(program.desktop.menus.empty());
}

TEST_P(ItemGestures, FindAControlForEachEntryOfTheMenu) {
    Open();
    for (const MenuEntry& entry : program.application.menus.Find(list.menu)->entries) {
        if (entry.IsSeparator()) continue;
        const std::string control = entry.handler.substr(0, entry.handler.rfind('_'));
        EXPECT_NE(Page().Find(control), nullptr) << entry.handler;
    }
}

TEST_P(ItemGestures, RunTheMenusCommands) {
    OpenWithTwo();
    TickItem(list, place, true, 'A');
    const Menu& menu = *program.application.menus.Find(list.menu);
    const auto choose = [&](const std::string& handler) {
        Select('B');
        for (const MenuEntry& entry : menu.entries) {
            if (entry.handler == handler + "_Click") program.desktop.nextMenuChoice = entry.name;
        }
        ListOf(list).UserMouseUp(MouseButton::Right);
    };
    choose(list.disable);
    ASSERT_NE(RowOf(list, place, false, 'A'), nullptr);
    TickItem(list, place, false, 'A');
    choose(list.enable);
    EXPECT_NE(RowOf(list, place, true, 'A'), nullptr);
    program.desktop.answers = {MessageAnswer::Yes};
    choose(list.remove);
    EXPECT_EQ(RowOf(list, place, true, 'B'), nullptr);
}

TEST_P(ItemGestures, RefreshTheList) {
    OpenWithTwo();
    ListOf(list).UserColumnClick(1);
    TickItem(list, place, true, 'A');
    Select('A');
    Put(list, place, true, "C");
    Click(list.refresh);
    EXPECT_NE(RowOf(list, place, true, 'C'), nullptr);
    ASSERT_NE(RowOf(list, place, true, 'A'), nullptr);
    EXPECT_FALSE(RowOf(list, place, true, 'A')->Checked());
    EXPECT_EQ(ListOf(list).SelectedRow(), nullptr);
}

TEST_P(ItemGestures, SortByTheHeaderThatIsClickedAndTurnTheOrderRound) {
    OpenWithTwo();
    ListOf(list).UserColumnClick(1);
    EXPECT_EQ(ListOf(list).SortKey(), 0u);
    EXPECT_EQ(ListOf(list).Order(), SortOrder::Descending);
    EXPECT_EQ(ListOf(list).Row(0).Key(), ItemName(list, 'B'));
    ListOf(list).UserColumnClick(3);
    EXPECT_EQ(ListOf(list).SortKey(), 2u);
    EXPECT_EQ(ListOf(list).Order(), SortOrder::Ascending);
}

std::vector<const ListCase*> ListsWith(const char* const ListCase::*button) {
    std::vector<const ListCase*> lists;
    for (const ListCase* list : AllLists) {
        if (list->*button != nullptr) lists.push_back(list);
    }
    return lists;
}

std::string NameOfList(const testing::TestParamInfo<const ListCase*>& test) {
    return test.param->list;
}

INSTANTIATE_TEST_SUITE_P(EveryList, ItemGestures, testing::ValuesIn(AllLists), NameOfList);
INSTANTIATE_TEST_SUITE_P(EveryList, ItemsWithFiles, testing::ValuesIn(ListsWith(&ListCase::folder)),
                         NameOfList);

// ---- Information and search

class ClassItems : public ItemGestures {
  protected:
    // What names the class of an item: the protocols have it in a column of its own.
    std::string ClassOf(char letter) {
        if (&list != &Protocols) return ItemName(list, letter);
        return letter == 'A' ? ProtocolClass : "{60BE}";
    }
    // Name, path and size that the information dialog shows.
    RowTexts ShownInformation() {
        RowTexts shown;
        program.desktop.onModal = [&shown](Form& form) {
            EXPECT_EQ(form.Name(), "frmviewInfo");
            for (const char* box : {"txtName", "txtPath"}) {
                shown.push_back(dynamic_cast<TextBox&>(*form.Find(box)).Value());
            }
            shown.push_back(form.Find("lblSize(1)")->Text());
        };
        Page().Run(std::string(list.view) + "_Click");
        return shown;
    }
};

TEST_P(ClassItems, ShowFileAndClassPathAndSize) {
    OpenWithTwo();
    Select('A');
    program.desktop.events.clear();
    EXPECT_EQ(ShownInformation(),
              (RowTexts{"item.dll " + ClassOf('A'), "C:\\Some Tools\\item.dll", "2.0"}));
    EXPECT_EQ(
        program.desktop.events,
        (RowTexts{"create frmviewInfo", "modal frmviewInfo above frmMain", "destroy frmviewInfo"}));
}

TEST_P(ClassItems, ShowWhatThereIsOfAFileThatIsGone) {
    OpenWithTwo();
    Select('B');
    EXPECT_EQ(ShownInformation(), (RowTexts{"away.dll " + ClassOf('B'), "C:\\Gone\\away.dll", ""}));
}

TEST_P(ClassItems, ShowNothingWithoutASelectedRow) {
    OpenWithTwo();
    ListOf(list).UserSelect(nullptr);
    EXPECT_EQ(ShownInformation(), RowTexts());
}

TEST_P(ClassItems, SearchForTheClassOnADoubleClick) {
    OpenWithTwo();
    Select('A');
    ListOf(list).Raise("DblClick");
    ASSERT_EQ(Opened().size(), 1u);
    EXPECT_EQ(Opened()[0].file, "http://www.google.com/search?q=" + ClassOf('A'));
}

TEST_P(ClassItems, SearchForTheClassByTheMenu) {
    OpenWithTwo();
    Select('B');
    program.desktop.nextMenuChoice = std::string(list.menu) + "_Google";
    ListOf(list).UserMouseUp(MouseButton::Right);
    ASSERT_EQ(Opened().size(), 1u);
    EXPECT_EQ(Opened()[0].file, "http://www.google.com/search?q=" + ClassOf('B'));
}

TEST_P(ClassItems, SearchNothingWithoutASelectedRow) {
    OpenWithTwo();
    ListOf(list).UserSelect(nullptr);
    ListOf(list).Raise("DblClick");
    EXPECT_TRUE(Opened().empty());
}

INSTANTIATE_TEST_SUITE_P(EveryList, ClassItems, testing::ValuesIn(ListsWith(&ListCase::view)),
                         NameOfList);

class ItemsWithoutClass : public ItemGestures {};

TEST_P(ItemsWithoutClass, SearchNothingOnADoubleClick) {
    OpenWithTwo();
    Select('A');
    ListOf(list).Raise("DblClick");
    EXPECT_TRUE(Opened().empty());
}

INSTANTIATE_TEST_SUITE_P(EveryList, ItemsWithoutClass, testing::Values(&Menus, &Domains),
                         NameOfList);

}  // namespace
}  // namespace velkarix
