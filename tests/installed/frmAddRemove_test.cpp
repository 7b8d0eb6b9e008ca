#include "installed/frmAddRemove.h"

#include "tests/installed/InstalledPage.h"

namespace velkarix {
namespace {

class InstalledPageTest : public InstalledPage {
  protected:
    const std::vector<Launch>& Launched() { return Machine().shell.Launched(); }
};

TEST_F(InstalledPageTest, HasItsControlsWithTheirWords) {
    Open();
    const std::pair<const char*, const char*> controls[] = {
        {"cmdUninstall", "Uninstall"},
        {"cmdDelete", "Delete Entry"},
        {"cmdReport", "Generate Report"},
        {"cmdRefresh", "Refresh"},
        {"optIcon", "Icon View"},
        {"optReport", "Detail View"},
        {"fmInstalled", "Installed Applications"},
    };
    for (const auto& [name, text] : controls) EXPECT_EQ(Page().Find(name)->Text(), text);
    for (const char* name : {"cmdUninstall", "cmdDelete", "cmdReport", "cmdRefresh"}) {
        EXPECT_EQ(Page().Find(name)->SkinElement(), "button") << name;
    }
}

TEST_F(InstalledPageTest, RefreshesByItsButtonAndF5) {
    Open();
    AddApp("A");
    Click("cmdRefresh");
    EXPECT_EQ(Names(), RowTexts{"A"});
    AddApp("B");
    EXPECT_TRUE(Page().RaiseKey({Key::F5}));
    EXPECT_EQ(Names(), (RowTexts{"A", "B"}));
}

// ---- The view

TEST_F(InstalledPageTest, ShowsIconsAtFirst) {
    AddApp("A");
    Open();
    EXPECT_TRUE(Option("optIcon").Chosen());
    EXPECT_EQ(List().Mode(), ListMode::Icons);
    Leave();
    EXPECT_NE(program.InstalledText("Settings.ini").find("View=0\r\n"), std::string::npos);
}

TEST_F(InstalledPageTest, ShowsTheDetailsThatTheSettingAsksFor) {
    for (const char* setting : {"3", " 3", "3.2", "3 and more"}) {
        Settings(std::string("[Main]\r\nView=") + setting + "\r\n");
        Open();
        EXPECT_TRUE(Option("optReport").Chosen()) << setting;
        EXPECT_FALSE(Option("optIcon").Chosen()) << setting;
        EXPECT_EQ(List().Mode(), ListMode::Details) << setting;
        Leave();
        EXPECT_NE(program.InstalledText("Settings.ini").find("View=3\r\n"), std::string::npos);
    }
}

TEST_F(InstalledPageTest, ShowsIconsForAnyOtherSetting) {
    for (const char* setting : {"0", "1", "2", "4", "-3", "30", "x3", "", "70000"}) {
        Settings(std::string("[Main]\r\nView=") + setting + "\r\n");
        program.Start();
        Enter();
        EXPECT_TRUE(Option("optIcon").Chosen()) << setting;
        EXPECT_EQ(List().Mode(), ListMode::Icons) << setting;
        Leave();
    }
}

TEST_F(InstalledPageTest, ChangesTheViewWithoutReadingAnything) {
    AddApp("A");
    Open();
    Select("A");
    const ListRow* row = RowOf("A");
    Machine().Journal().Clear();
    EXPECT_TRUE(Option("optReport").Raise("Click"));
    EXPECT_EQ(List().Mode(), ListMode::Details);
    EXPECT_TRUE(Option("optIcon").Raise("Click"));
    EXPECT_EQ(List().Mode(), ListMode::Icons);
    EXPECT_TRUE(Machine().Journal().Calls().empty());
    EXPECT_EQ(RowOf("A"), row);
    EXPECT_EQ(List().SelectedRow(), row);
}

TEST_F(InstalledPageTest, KeepsTheViewOverARefresh) {
    AddApp("A");
    Open();
    for (const auto& [option, mode] :
         {std::pair("optReport", ListMode::Details), std::pair("optIcon", ListMode::Icons)}) {
        Option(option).Raise("Click");
        Click("cmdRefresh");
        EXPECT_EQ(List().Mode(), mode);
        EXPECT_TRUE(Option(option).Chosen());
    }
}

TEST_F(InstalledPageTest, WritesTheViewWhenItIsLeft) {
    Open();
    Option("optReport").Raise("Click");
    EXPECT_EQ(program.InstalledText("Settings.ini").find("View=3"), std::string::npos);
    Leave();
    EXPECT_NE(program.InstalledText("Settings.ini").find("View=3\r\n"), std::string::npos);
    Enter();
    EXPECT_TRUE(Option("optReport").Chosen());
    Option("optIcon").Raise("Click");
    program.application.forms.UnloadAll("frmMain");
    EXPECT_NE(program.InstalledText("Settings.ini").find("View=0\r\n"), std::string::npos);
}

// ---- Sorting

TEST_F(InstalledPageTest, TurnsTheOrderRoundWhenTheSameHeaderIsClickedAgain) {
    SetText("1", "DisplayName", "a");
    SetText("1", "UninstallString", "x");
    SetText("2", "DisplayName", "b");
    SetText("2", "UninstallString", "w");
    Open();
    const auto click = [this](int column) {
        List().UserColumnClick(column);
        return ColumnOf(0);
    };
    EXPECT_EQ(click(1), (RowTexts{"b", "a"}));  // the list is sorted by this column at first
    EXPECT_EQ(click(1), (RowTexts{"a", "b"}));
    EXPECT_EQ(click(2), (RowTexts{"b", "a"}));  // another column keeps the order
    EXPECT_EQ(click(2), (RowTexts{"a", "b"}));
    EXPECT_EQ(click(1), (RowTexts{"b", "a"}));  // and the order is that of the last click
}

TEST_F(InstalledPageTest, KeepsTheSortingOverARefresh) {
    for (const char* name : {"A", "B"}) AddApp(name);
    Open();
    List().UserColumnClick(1);
    AddApp("C");
    Click("cmdRefresh");
    EXPECT_EQ(Names(), (RowTexts{"C", "B", "A"}));
    Leave();
    Enter();
    EXPECT_EQ(Names(), (RowTexts{"A", "B", "C"}));
}

// ---- The menu

TEST_F(InstalledPageTest, ShowsItsMenuOverASelectedRowOnARightClick) {
    AddApp("A");
    Open();
    List().UserMouseUp(MouseButton::Right);
    Select("A");
    List().UserMouseUp(MouseButton::Left);
    EXPECT_TRUE(program.desktop.menus.empty());
    List().UserMouseUp(MouseButton::Right);
    ASSERT_EQ(program.desktop.menus.size(), 1u);
    EXPECT_EQ(program.desktop.menus[0].owner, "frmAddRemove");
    EXPECT_EQ(program.desktop.menus[0].menu.name, "mnuAddRemove");
}

TEST_F(InstalledPageTest, RunsTheCommandsOfItsMenu) {
    AddApp("A");
    Open();
    const auto choose = [this](const char* entry) {
        Select("A");
        program.desktop.nextMenuChoice = entry;
        List().UserMouseUp(MouseButton::Right);
    };
    choose("mnuAddRemove_Uninstall");
    EXPECT_EQ(Launched(), (std::vector<Launch>{{"A /uninstall", 1}}));
    choose("mnuAddremove_Report");
    EXPECT_EQ(program.desktop.saveRequests.size(), 1u);
    AddApp("B");
    choose("mnuAddRemove_Refresh");
    EXPECT_EQ(Names(), (RowTexts{"A", "B"}));
    program.desktop.answers = {MessageAnswer::Yes};
    choose("mnuAddRemove_Delete");
    EXPECT_EQ(Names(), RowTexts{"B"});
}

// ---- Uninstalling

TEST_F(InstalledPageTest, RunsTheCommandAsItStands) {
    const RowTexts commands = {"\"C:\\Program Files\\Un It.exe\" /S \"a b\"", "  un.exe  ",
                               "%WinDir%\\un.exe", "rundll32 setupapi,Install 132 c:\\a.inf",
                               "C:\\\xFC.exe \xFF"};
    for (std::size_t i = 0; i < commands.size(); ++i) {
        SetText(std::to_string(i), "DisplayName", "App");
        SetText(std::to_string(i), "UninstallString", commands[i]);
    }
    Open();
    std::vector<Launch> expected;
    for (std::size_t i = 0; i < commands.size(); ++i) {
        Select(std::to_string(i));
        Click("cmdUninstall");
        EXPECT_TRUE(List().Raise("DblClick"));
        expected.insert(expected.end(), 2, {commands[i], 1});
    }
    EXPECT_EQ(Launched(), expected);
}

TEST_F(InstalledPageTest, RunsTheCommandAtOnceAndDoesNothingElse) {
    AddApp("A");
    Open();
    Select("A");
    Machine().Journal().Clear();
    Click("cmdUninstall");  // there is no such program: that is of no account either
    EXPECT_EQ(Machine().Journal().Names(), RowTexts{"WinExec"});
    EXPECT_EQ(Messages(), RowTexts());
    EXPECT_EQ(List().SelectedRow(), RowOf("A"));
}

TEST_F(InstalledPageTest, RunsTheCommandThatTheRowShows) {
    AddApp("A");
    Open();
    SetText("A", "UninstallString", "changed");
    Select("A");
    Click("cmdUninstall");
    EXPECT_EQ(Launched(), (std::vector<Launch>{{"A /uninstall", 1}}));
}

TEST_F(InstalledPageTest, RunsNothingWithoutASelectedRow) {
    AddApp("A");
    Open();
    Select("A");
    List().UserSelect(nullptr);  // a click beside all rows
    Click("cmdUninstall");
    List().Raise("DblClick");
    EXPECT_TRUE(Launched().empty());
}

TEST_F(InstalledPageTest, ReportsByKeyAndDeletesByKeyWhereTheListHasTheFocus) {
    AddApp("A");
    Open();
    EXPECT_TRUE(Page().RaiseKey({Key::P, true}));
    EXPECT_EQ(program.desktop.saveRequests.size(), 1u);
    List().Select(&List().Row(0));
    EXPECT_FALSE(Page().RaiseKey({Key::Delete}));
    program.desktop.answers = {MessageAnswer::Yes};
    EXPECT_TRUE(Page().RaiseKey({Key::Delete}, &List()));
    EXPECT_EQ(Names(), RowTexts{});
}

}  // namespace
}  // namespace velkarix
