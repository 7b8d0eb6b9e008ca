#include "browser/MenuList.h"

#include "tests/browser/BrowserPage.h"

namespace velkarix {
namespace {

class MenuListTest : public BrowserPage {
  protected:
    void Put(Hive hive, const char* holder, const std::string& name, const std::string& path) {
        SetValue(hive, holder + ("\\" + name), "", path);
    }
    std::vector<RowTexts> ShownRows() { return Rows("lstvMenu"); }
};

TEST_F(MenuListTest, HasItsColumnsAndNoPictures) {
    Open();
    EXPECT_EQ(List("lstvMenu").Columns(), (RowTexts{"Menu", "Enabled", "Scope", "Path"}));
    EXPECT_EQ(List("lstvMenu").Images(), nullptr);
}

TEST_F(MenuListTest, ListsTheHeldEntriesOfTheUserBeforeThoseOfAll) {
    for (const Hive hive : {Hive::LocalMachine, Hive::CurrentUser}) {
        Put(hive, live::Menus, "&Save", "live");
        Put(hive, held::Menus, "&Save", "held");
    }
    Open();
    EXPECT_EQ(ShownRows(), (std::vector<RowTexts>{{"&Save", "True", "All Users", "live"},
                                                  {"&Save", "True", "Current User", "live"},
                                                  {"&Save", "False", "Current User", "held"},
                                                  {"&Save", "False", "All Users", "held"}}));
}

TEST_F(MenuListTest, ShowsThePathAsItStands) {
    const char* const paths[] = {"",
                                 "%SystemRoot%\\a.htm",
                                 "C:\\PROGRA~1\\a.htm",
                                 "\"C:\\a.htm\"",
                                 "http://example.com/a?b=%20c",
                                 "res://C:\\WINDOWS\\a.dll/1.htm"};
    Machine().AddFolder("C:\\Program Files").ShortName("PROGRA~1");
    Machine().AddFile("C:\\Program Files\\a.htm");
    RowTexts expected;
    for (std::size_t i = 0; i < std::size(paths); ++i) {
        Put(Hive::CurrentUser, live::Menus, std::to_string(i), paths[i]);
        expected.push_back(paths[i]);
    }
    Open();
    EXPECT_EQ(ColumnOf("lstvMenu", 3), expected);
}

TEST_F(MenuListTest, ShowsAPathOfAnyTypeAsItsBytes) {
    const std::pair<MemoryValue, const char*> values[] = {
        {{"", registryType::Dword, {'A', 'B', 0, 0}}, "AB"},
        {{"", registryType::Binary, {0xE9, 0xFF}}, "\xE9\xFF"},
        {{"", registryType::MultiSz, {'a', 0, 'b', 0, 0}}, "a"},
        {{"", registryType::None, {'n'}}, "n"},
        {{"", 0x7FFFFFFF, {'u', 'v', 'w'}}, "uvw"},
        {{"", registryType::Sz, {}}, ""},
        {{"", registryType::ExpandSz, {'%', 'a', '%'}}, "%a%"},
    };
    Open();
    for (const auto& [value, text] : values) {
        Machine().registry.SetRaw(Hive::CurrentUser, live::Menus + std::string("\\x"), "",
                                  value.type, value.data);
        Click("cmdRefreshMenu");
        EXPECT_EQ(ShownRows(), (std::vector<RowTexts>{{"x", "True", "Current User", text}}));
    }
}

TEST_F(MenuListTest, ShowsAnEntryWithoutAPath) {
    AddKey(Hive::LocalMachine, live::Menus + std::string("\\Empty"));
    Open();
    EXPECT_EQ(ShownRows(), (std::vector<RowTexts>{{"Empty", "True", "All Users", ""}}));
}

TEST_F(MenuListTest, ShowsAnEntryThatMayNotBeReadWithoutItsPath) {
    Put(Hive::LocalMachine, live::Menus, "Closed", "C:\\secret.htm");
    Put(Hive::LocalMachine, live::Menus, "Open", "C:\\a.htm");
    Machine().registry.Restrict(Hive::LocalMachine, live::Menus + std::string("\\Closed"),
                                std::nullopt);
    Open();
    EXPECT_EQ(ColumnOf("lstvMenu", 3), (RowTexts{"", "C:\\a.htm"}));
    EXPECT_EQ(Messages(), RowTexts());
}

// No list of suspicious things is asked for a menu entry.
TEST_F(MenuListTest, NeverSuspectsAnEntry) {
    SuspectClasses("{0a5e7c11-2f30-4b61-9d0a-6c1e5b7f0001}");
    SuspectFiles("900150983cd24fb0d6963f7d28e17f72");
    Put(Hive::LocalMachine, live::Menus, ClassA, "C:\\a.htm");
    Machine().AddFile("C:\\a.htm").Content("abc");
    Open();
    EXPECT_EQ(List("lstvMenu").Row(0).TextColor(), std::nullopt);
    EXPECT_EQ(Machine().Journal().CountOf("CryptCreateHash"), 0u);
}

}  // namespace
}  // namespace velkarix
