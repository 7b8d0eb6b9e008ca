// What the user does with a row of the process page: search, menu, folder, information.
#include "tests/process/ProcessPage.h"

namespace velkarix {
namespace {

using ProcessCommandsTest = ProcessPage;

std::string Searched(const TestProgram& program) {
    return program.machine.shell.Opened().empty() ? "" : program.machine.shell.Opened()[0].file;
}

TEST_F(ProcessCommandsTest, SearchesForNameAndCompany) {
    Run(1, "C:\\a b.exe", "1").Version({{"CompanyName", "Sample Works Ltd"}});
    program.Start();
    List().Raise("DblClick");
    EXPECT_EQ(Searched(program), "http://www.google.com/search?q=a b.exe+Sample+Works+Ltd");
}

TEST_F(ProcessCommandsTest, SearchesForTheNameAloneWithoutACompany) {
    Run(1, "C:\\a.exe", "1");
    program.Start();
    List().Raise("DblClick");
    EXPECT_EQ(Searched(program), "http://www.google.com/search?q=a.exe");
}

TEST_F(ProcessCommandsTest, SearchesNothingWithoutASelectedRow) {
    Run(1, "C:\\a.exe", "1");
    program.Start();
    List().UserSelect(nullptr);
    List().Raise("DblClick");
    EXPECT_EQ(Searched(program), "");
}

class ProcessMenuTest : public ProcessPage {
  protected:
    // The entries that are enabled in the menu that a right click pops up.
    RowTexts EnabledEntries() {
        program.desktop.menus.clear();
        List().UserMouseUp(MouseButton::Right);
        RowTexts entries;
        if (program.desktop.menus.empty()) return {"no menu"};
        EXPECT_EQ(program.desktop.menus[0].menu.name, "mnuProcess");
        for (const MenuEntry& entry : program.desktop.menus[0].menu.entries) {
            if (entry.enabled && !entry.IsSeparator()) entries.push_back(entry.name);
        }
        return entries;
    }
};

TEST_F(ProcessMenuTest, OffersAddingInTheFilteredView) {
    Run(1, "C:\\a.exe", "1");
    program.Start();
    EXPECT_EQ(EnabledEntries(), (RowTexts{"mnuAdd", "mnuKill", "mnuDelete", "mnuView", "mnuReport",
                                          "mnuOpen", "mnuRefresh", "mnuGoogle"}));
}

TEST_F(ProcessMenuTest, OffersRemovingInTheViewOfAll) {
    Run(1, "C:\\a.exe", "1");
    ShowAll();
    program.Start();
    EXPECT_EQ(EnabledEntries(), (RowTexts{"mnuRemove", "mnuKill", "mnuDelete", "mnuView",
                                          "mnuReport", "mnuOpen", "mnuRefresh", "mnuGoogle"}));
}

TEST_F(ProcessMenuTest, OffersOnlyToRefreshAnEmptyList) {
    program.Start();
    EXPECT_EQ(EnabledEntries(), (RowTexts{"mnuRefresh"}));
}

TEST_F(ProcessMenuTest, EnablesItsEntriesAgainWhenThereAreRows) {
    program.Start();
    EnabledEntries();
    Run(1, "C:\\a.exe", "1");
    Click("cmdRefresh");
    List().UserSelect(&List().Row(0));
    EXPECT_EQ(EnabledEntries().size(), 8u);
}

TEST_F(ProcessMenuTest, GreysFolderAndDeletionOfARowWhoseFileIsGone) {
    program.machine.AddProcess(2, "Q:\\gone.exe");
    program.Start();
    EXPECT_EQ(EnabledEntries(),
              (RowTexts{"mnuAdd", "mnuKill", "mnuView", "mnuReport", "mnuRefresh", "mnuGoogle"}));
}

TEST_F(ProcessMenuTest, ShowsNoMenuWithoutASelectedRowOrForAnotherButton) {
    Run(1, "C:\\a.exe", "1");
    program.Start();
    List().UserMouseUp(MouseButton::Left);
    EXPECT_TRUE(program.desktop.menus.empty());
    List().UserSelect(nullptr);
    EXPECT_EQ(EnabledEntries(), (RowTexts{"no menu"}));
}

TEST_F(ProcessMenuTest, RunsThePagesCommands) {
    Run(1, "C:\\a.exe", "1");
    program.Start();
    Run(2, "C:\\b.exe", "2");
    program.desktop.nextMenuChoice = "mnuRefresh";
    List().UserMouseUp(MouseButton::Right);
    EXPECT_EQ(List().RowCount(), 2u);
    List().UserSelect(RowNamed("b.exe"));
    program.desktop.nextMenuChoice = "mnuGoogle";
    List().UserMouseUp(MouseButton::Right);
    EXPECT_EQ(Searched(program), "http://www.google.com/search?q=b.exe");
}

TEST_F(ProcessCommandsTest, ShowsTheRowsFileInItsFolder) {
    Run(1, "C:\\My Tools\\a.exe", "1");
    program.machine.AddFile("C:\\WINDOWS\\explorer.exe");
    program.Start();
    Click("cmdOpen");
    ASSERT_EQ(program.machine.shell.Opened().size(), 1u);
    EXPECT_EQ(program.machine.shell.Opened()[0],
              (ShellOpening{program.application.MainWindow(), "Open", "explorer.exe",
                            "/select,C:\\My Tools\\a.exe", "", 1}));
    EXPECT_NE(program.application.MainWindow(), 0u);
}

TEST_F(ProcessCommandsTest, ShowsNoFolderForAFileThatWentAway) {
    Run(1, "C:\\Tools\\a.exe", "1");
    program.Start();
    program.machine.disk.Remove("C:\\Tools\\a.exe");
    Click("cmdOpen");
    EXPECT_TRUE(program.machine.shell.Opened().empty());
}

TEST_F(ProcessCommandsTest, ShowsTheInformationOfTheSelectedRow) {
    Run(1, "C:\\Tools\\a.exe", std::string(2048, 'x')).Version({{"CompanyName", "Works"}});
    program.Start();
    RowTexts shown;
    program.desktop.onModal = [&shown](Form& form) {
        for (const char* box : {"txtName", "txtPath", "txtCompanyname"}) {
            shown.push_back(dynamic_cast<TextBox&>(*form.Find(box)).Value());
        }
        shown.push_back(form.Find("lblSize(1)")->Text());
    };
    Click("cmdViewInformation");
    EXPECT_EQ(shown, (RowTexts{"a.exe", "C:\\Tools\\a.exe", "Works", "2.0"}));
}

TEST_F(ProcessCommandsTest, ShowsNoInformationWithoutASelectedRow) {
    Run(1, "C:\\a.exe", "1");
    program.Start();
    List().UserSelect(nullptr);
    program.desktop.events.clear();
    Click("cmdViewInformation");
    Click("cmdOpen");
    EXPECT_TRUE(program.desktop.events.empty());
    EXPECT_TRUE(program.machine.shell.Opened().empty());
}

}  // namespace
}  // namespace velkarix
