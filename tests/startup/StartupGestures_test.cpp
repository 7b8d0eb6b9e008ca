// What the user does with a row of the startup list: information, folder, sorting, menu.
#include "tests/startup/StartupPage.h"

namespace velkarix {
namespace {

class StartupGestures : public StartupPage {
  protected:
    StartupGestures() {
        Machine().AddFile("C:\\Some Tools\\agent.exe").Content(std::string(2048, 'x'));
        SetRun(Hive::LocalMachine, "Agent", "C:\\Some Tools\\agent.exe /x");
        SetRun(Hive::LocalMachine, "Gone", "C:\\Gone\\away.exe");
    }
    const std::vector<ShellOpening>& Opened() { return Machine().shell.Opened(); }
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
        Click("cmdViewInformation");
        return shown;
    }
};

TEST_F(StartupGestures, ShowNameAndFileAndPathAndSize) {
    Open();
    Select("Agent");
    EXPECT_EQ(ShownInformation(),
              (RowTexts{"Agent (agent.exe)", "C:\\Some Tools\\agent.exe", "2.0"}));
    EXPECT_EQ(program.desktop.events.end()[-2], "modal frmviewInfo above frmMain");
}

TEST_F(StartupGestures, ShowTheNameAloneOfAnItemWithoutAFile) {
    Open();
    Select("Gone");
    EXPECT_EQ(ShownInformation(), (RowTexts{"Gone", "", ""}));
    List().UserSelect(nullptr);
    EXPECT_EQ(ShownInformation(), RowTexts());
}

TEST_F(StartupGestures, ShowTheFileInItsFolder) {
    Machine().AddFile("C:\\WINDOWS\\explorer.exe");
    Open();
    Select("Agent");
    Click("cmdFolder");
    ASSERT_EQ(Opened().size(), 1u);
    EXPECT_EQ(Opened()[0], (ShellOpening{program.application.MainWindow(), "Open", "explorer.exe",
                                         "/select,C:\\Some Tools\\agent.exe", "", 1}));
}

TEST_F(StartupGestures, ShowNoFolderOfAFileThatIsGoneOrWithoutASelectedRow) {
    Open();
    Select("Gone");
    Click("cmdFolder");
    Select("Agent");
    Machine().disk.Remove("C:\\Some Tools\\agent.exe");
    Click("cmdFolder");
    List().UserSelect(nullptr);
    Click("cmdFolder");
    EXPECT_TRUE(Opened().empty());
}

// The folder alone counts, also when the file has gone since.
TEST_F(StartupGestures, EnableTheFolderButtonWhereTheFolderIsThere) {
    Open();
    Select("Gone");
    EXPECT_FALSE(Enabled("cmdFolder"));
    Select("Agent");
    EXPECT_TRUE(Enabled("cmdFolder"));
    Machine().disk.Remove("C:\\Some Tools\\agent.exe");
    Select("Agent");
    EXPECT_TRUE(Enabled("cmdFolder"));
    Machine().disk.Remove("C:\\Some Tools");
    Select("Agent");
    EXPECT_FALSE(Enabled("cmdFolder"));
}

TEST_F(StartupGestures, PopUpTheMenuWithItsOpenEntryGrey) {
    Open();
    for (const char* name : {"Agent", "Gone"}) {
        program.application.menus.Find("mnuStartup")->Find("mnuStartup_Open")->enabled = true;
        Select(name);
        List().UserMouseUp(MouseButton::Right);
        ASSERT_FALSE(program.desktop.menus.empty());
        EXPECT_EQ(program.desktop.menus.back().menu.name, "mnuStartup");
        EXPECT_EQ(program.desktop.menus.back().owner, "frmStartup");
        EXPECT_FALSE(program.desktop.menus.back().menu.Find("mnuStartup_Open")->enabled) << name;
    }
}

// The entry asks for the folder joined to itself.
TEST_F(StartupGestures, EnableTheOpenEntryWhereTheFolderTwiceIsThere) {
    SetRun(Hive::LocalMachine, "Near", "agent.exe");
    Machine().system.SetVariable("Path", "near");
    Machine().AddFile("C:\\Velkarix\\near\\agent.exe");
    Machine().AddFolder("C:\\Velkarix\\near\\near");
    Open();
    Select("Near");
    List().UserMouseUp(MouseButton::Right);
    EXPECT_TRUE(program.desktop.menus.back().menu.Find("mnuStartup_Open")->enabled);
}

TEST_F(StartupGestures, PopUpNoMenuWithoutASelectedRowOrForAnotherButton) {
    Open();
    Select("Agent");
    List().UserMouseUp(MouseButton::Left);
    List().UserSelect(nullptr);
    List().UserMouseUp(MouseButton::Right);
    EXPECT_TRUE(program.desktop.menus.empty());
}

TEST_F(StartupGestures, FindAControlForEachEntryOfTheMenuButOne) {
    Open();
    for (const MenuEntry& entry : program.application.menus.Find("mnuStartup")->entries) {
        if (entry.IsSeparator()) continue;
        const std::string control = entry.handler.substr(0, entry.handler.rfind('_'));
        EXPECT_EQ(Page().Find(control) == nullptr, entry.name == "mnuStartup_Open") << entry.name;
    }
}

TEST_F(StartupGestures, RunTheMenusCommands) {
    Open();
    const auto choose = [&](const char* entry) {
        Select("Agent");
        program.desktop.nextMenuChoice = entry;
        List().UserMouseUp(MouseButton::Right);
    };
    Tick("Agent");
    choose("mnuStartup_Disable");
    EXPECT_EQ(RowNamed("Agent")->Text(startupColumn::Enabled), "False");
    Tick("Agent");
    choose("mnuStartup_Enable");
    EXPECT_EQ(RowNamed("Agent")->Text(startupColumn::Enabled), "True");
    choose("mnuStartup_View");
    EXPECT_EQ(program.desktop.events.end()[-2], "modal frmviewInfo above frmMain");
    choose("mnuStartup_Report");
    EXPECT_EQ(program.desktop.saveRequests.size(), 1u);
    program.desktop.answers = {MessageAnswer::Yes};
    choose("mnuStartup_Delete");
    EXPECT_EQ(RowNamed("Agent"), nullptr);
    SetRun(Hive::LocalMachine, "Late", "");
    Select("Gone");
    program.desktop.nextMenuChoice = "mnuStartup_Refresh";
    List().UserMouseUp(MouseButton::Right);
    EXPECT_NE(RowNamed("Late"), nullptr);
}

TEST_F(StartupGestures, DoNothingOnADoubleClick) {
    Open();
    Select("Agent");
    Machine().Journal().Clear();
    List().Raise("DblClick");
    EXPECT_EQ(Machine().Journal().Calls().size(), 0u);
}

// Ascending by name at first, so the first click on that header turns the order round.
TEST_F(StartupGestures, TurnTheOrderRoundAtAClickOnTheSameHeaderAlone) {
    Open();
    List().UserColumnClick(1);
    EXPECT_EQ(Names(), (RowTexts{"Gone", "Agent"}));
    List().UserColumnClick(4);
    EXPECT_EQ(List().SortKey(), 3u);
    EXPECT_EQ(List().Order(), SortOrder::Descending);
    EXPECT_EQ(Names(), (RowTexts{"Agent", "Gone"}));
    List().UserColumnClick(4);
    EXPECT_EQ(Names(), (RowTexts{"Gone", "Agent"}));
    Click("cmdRefresh");
    EXPECT_EQ(Names(), (RowTexts{"Gone", "Agent"}));
}

}  // namespace
}  // namespace velkarix
