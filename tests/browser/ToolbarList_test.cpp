#include "browser/ToolbarList.h"

#include "tests/browser/BrowserPage.h"

namespace velkarix {
namespace {

class ToolbarListTest : public BrowserPage {
  protected:
    std::vector<RowTexts> ShownRows() { return Rows("lstvToolbar"); }
    // Enabled and scope of each row.
    std::vector<RowTexts> States() {
        std::vector<RowTexts> states;
        for (const RowTexts& row : ShownRows()) states.push_back({row[1], row[2]});
        return states;
    }
};

TEST_F(ToolbarListTest, HasItsColumns) {
    Open();
    EXPECT_EQ(List("lstvToolbar").Columns(),
              (RowTexts{"Class ID", "Enabled", "Scope", "Description", "File Name", "Size (KB)",
                        "Created On", "Company Name", "Prodcut Name", "File Description", "Path"}));
}

TEST_F(ToolbarListTest, ShowsAnItemWithAllThatItsFileTells) {
    SetValue(Hive::LocalMachine, live::Toolbars, ClassA, "Of the registry");
    AddClass(ClassA, "C:\\Tools\\Bar.dll", "Lathe bar")
        .Content(std::string(2048, 'x'))
        .Created(2003, 5, 7)
        .Version({{"CompanyName", "Sample Works"},
                  {"ProductName", "Sample Suite"},
                  {"FileDescription", "Drives the lathe"}});
    Open();
    EXPECT_EQ(ShownRows(),
              (std::vector<RowTexts>{{ClassA, "True", "All Users", "Lathe bar", "Bar.dll", "2.0",
                                      "05/07/2003", "Sample Works", "Sample Suite",
                                      "Drives the lathe", "C:\\Tools\\"}}));
}

TEST_F(ToolbarListTest, ShowsAnItemWhoseFileIsGoneByWhatTheRegistryTells) {
    SetValue(Hive::CurrentUser, live::UserToolbars, ClassB);
    RegisterClass(ClassB, "C:\\Tools\\gone.dll", "Was here");
    Open();
    EXPECT_EQ(ShownRows(),
              (std::vector<RowTexts>{{ClassB, "True", "Current User", "Was here", "gone.dll", "",
                                      "", "", "", "", "C:\\Tools\\"}}));
}

TEST_F(ToolbarListTest, ListsTheHeldItemsOfTheUserBeforeThoseOfAll) {
    SetValue(Hive::LocalMachine, live::Toolbars, ClassA);
    SetValue(Hive::CurrentUser, live::UserToolbars, ClassA);
    SetValue(Hive::LocalMachine, held::Toolbars, ClassA);
    SetValue(Hive::CurrentUser, held::Toolbars, ClassA);
    Open();
    EXPECT_EQ(States(), (std::vector<RowTexts>{{"True", "All Users"},
                                               {"True", "Current User"},
                                               {"False", "Current User"},
                                               {"False", "All Users"}}));
}

TEST_F(ToolbarListTest, LooksForTheUsersItemsOneLevelLowerThanForThoseOfAll) {
    SetValue(Hive::LocalMachine, live::UserToolbars, ClassA);
    SetValue(Hive::CurrentUser, live::Toolbars, ClassB);
    Open();
    EXPECT_EQ(ShownRows(), std::vector<RowTexts>());
}

TEST_F(ToolbarListTest, PassesOverValuesThatAreNotNamedByAClass) {
    MemoryRegistry& registry = Machine().registry;
    for (const char* name : {"", "ITBarLayout", "Locked", "0A5E7C11", " {0A5E7C11}", "x{"}) {
        registry.SetRaw(Hive::CurrentUser, live::UserToolbars, name, registryType::Binary, {1, 2});
        registry.SetRaw(Hive::LocalMachine, live::Toolbars, name, registryType::Binary, {1, 2});
        registry.SetRaw(Hive::LocalMachine, held::Toolbars, name, registryType::Binary, {1, 2});
    }
    AddKey(Hive::LocalMachine, live::Toolbars + std::string("\\") + ClassA);
    Open();
    EXPECT_EQ(ShownRows(), std::vector<RowTexts>());
}

TEST_F(ToolbarListTest, TakesTheFirstCharacterOfANameForAClass) {
    SetValue(Hive::LocalMachine, live::Toolbars, "{");
    SetValue(Hive::LocalMachine, live::Toolbars, "{no class");
    Open();
    EXPECT_EQ(RowNames("lstvToolbar"), (RowTexts{"{", "{no class"}));
}

TEST_F(ToolbarListTest, ListsAnItemWhateverItsDataIs) {
    const MemoryValue values[] = {
        {"{0-sz}", registryType::Sz, {}},        {"{1-binary}", registryType::Binary, Bytes(5000)},
        {"{2-dword}", registryType::Dword, {1}}, {"{3-multi}", registryType::MultiSz, {'a'}},
        {"{4-none}", registryType::None, {}},    {"{5-unknown}", 0xFFFFFFFF, {1, 2, 3}},
    };
    RowTexts names;
    for (const MemoryValue& value : values) {
        Machine().registry.SetRaw(Hive::CurrentUser, live::UserToolbars, value.name, value.type,
                                  value.data);
        names.push_back(value.name);
    }
    Open();
    EXPECT_EQ(RowNames("lstvToolbar"), names);
}

TEST_F(ToolbarListTest, ShowsTheUsersHeldItemsWithoutLookingInTheHiveOfAll) {
    SetValue(Hive::CurrentUser, held::Toolbars, ClassA);
    Open();
    EXPECT_EQ(States(), (std::vector<RowTexts>{{"False", "Current User"}}));
}

}  // namespace
}  // namespace velkarix
