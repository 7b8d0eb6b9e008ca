#include "browser/HookList.h"

#include "tests/browser/BrowserPage.h"

namespace velkarix {
namespace {

class HookListTest : public BrowserPage {
  protected:
    std::vector<RowTexts> ShownRows() { return Rows("lstvHook"); }
};

TEST_F(HookListTest, HasItsColumns) {
    Open();
    EXPECT_EQ(List("lstvHook").Columns(),
              (RowTexts{"Class ID", "Enabled", "Description", "File Name", "Size (KB)",
                        "Created On", "Company Name", "Prodcut Name", "File Description", "Path"}));
}

TEST_F(HookListTest, ShowsAHookWithAllThatItsFileTells) {
    SetValue(Hive::CurrentUser, live::Hooks, ClassA);
    AddClass(ClassA, "C:\\Tools\\Hook.dll", "Lathe hook")
        .Content(std::string(1536, 'x'))
        .Created(2003, 5, 7)
        .Version({{"CompanyName", "Sample Works"},
                  {"ProductName", "Sample Suite"},
                  {"FileDescription", "Drives the lathe"}});
    Open();
    EXPECT_EQ(ShownRows(), (std::vector<RowTexts>{{ClassA, "True", "Lathe hook", "Hook.dll", "1.5",
                                                   "05/07/2003", "Sample Works", "Sample Suite",
                                                   "Drives the lathe", "C:\\Tools\\"}}));
}

TEST_F(HookListTest, ShowsAHookWhoseFileIsGoneByWhatTheRegistryTells) {
    SetValue(Hive::CurrentUser, held::Hooks, ClassA);
    RegisterClass(ClassA, "C:\\Tools\\gone.dll", "Was here");
    Open();
    EXPECT_EQ(ShownRows(), (std::vector<RowTexts>{{ClassA, "False", "Was here", "gone.dll", "", "",
                                                   "", "", "", "C:\\Tools\\"}}));
}

TEST_F(HookListTest, ShowsAHookWhoseClassIsNotRegistered) {
    SetValue(Hive::CurrentUser, live::Hooks, ClassA);
    Open();
    EXPECT_EQ(ShownRows(),
              (std::vector<RowTexts>{{ClassA, "True", "", "", "", "", "", "", "", ""}}));
    EXPECT_EQ(List("lstvHook").Row(0).Image(), 1u);
}

TEST_F(HookListTest, PassesOverValuesThatAreNotNamedByAClass) {
    for (const char* name : {"", "Hook", "0A5E7C11", " {0A5E7C11}", "x{"}) {
        SetValue(Hive::CurrentUser, live::Hooks, name, "x");
        SetValue(Hive::CurrentUser, held::Hooks, name, "x");
    }
    AddKey(Hive::CurrentUser, live::Hooks + std::string("\\") + ClassA);
    Open();
    EXPECT_EQ(ShownRows(), std::vector<RowTexts>());
}

TEST_F(HookListTest, ListsAHookWhateverItsDataIs) {
    const MemoryValue values[] = {
        {"{0-sz}", registryType::Sz, {}},        {"{1-binary}", registryType::Binary, Bytes(5000)},
        {"{2-dword}", registryType::Dword, {1}}, {"{3-multi}", registryType::MultiSz, {'a'}},
        {"{4-none}", registryType::None, {}},    {"{5-unknown}", 0xFFFFFFFF, {1, 2, 3}},
    };
    RowTexts names;
    for (const MemoryValue& value : values) {
        Machine().registry.SetRaw(Hive::CurrentUser, live::Hooks, value.name, value.type,
                                  value.data);
        names.push_back(value.name);
    }
    Open();
    EXPECT_EQ(RowNames("lstvHook"), names);
}

TEST_F(HookListTest, ShowsTheOnlyHookAsHeldOnceItIsOff) {
    SetValue(Hive::CurrentUser, live::Hooks, ClassA);
    RegisterClass(ClassA, "C:\\gone.dll");
    Open();
    Tick("lstvHook", ClassA);
    Click("cmdHookDisable");
    EXPECT_EQ(ColumnOf("lstvHook", 1), RowTexts{"False"});
    EXPECT_EQ(List("lstvHook").Row(0).TextColor(), DisabledColor);
}

}  // namespace
}  // namespace velkarix
