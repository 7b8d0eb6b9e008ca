// The report of the startup list.
#include "tests/startup/StartupPage.h"

namespace velkarix {
namespace {

constexpr const char* Path = "C:\\report.txt";

constexpr const char* NoVersion =
    "Product Name      : \r\nProduct Version   : \r\nFile Description  : \r\n"
    "File Version      : \r\nInternal Name     : \r\nOriginal Filename : \r\n"
    "Comments          : \r\nCompany Name      : \r\nLegal Copyright   : \r\n"
    "Legal Trademarks  : \r\nPrivate Build     : \r\nSpecial Build     : \r\n";

class StartupReport : public StartupPage {
  protected:
    StartupReport() {
        Machine()
            .AddFile("C:\\Tools\\a.exe")
            .Content("abc")
            .Created(2003, 5, 7)
            .Version({{"ProductName", "Suite"},
                      {"ProductVersion", "9"},
                      {"FileDescription", "Watches"},
                      {"FileVersion", "1.2.3"},
                      {"CompanyName", "Works"}});
    }
    std::string Printed() {
        Page().printReport(Path);
        return TextOf(Path);
    }
    // The lines of the report that begin so.
    RowTexts Lines(const std::string& beginning) {
        const std::string text = Printed();
        RowTexts lines;
        for (std::size_t at = 0; at < text.size(); at = text.find("\r\n", at) + 2) {
            if (text.compare(at, beginning.size(), beginning) == 0) {
                lines.push_back(text.substr(at, text.find("\r\n", at) - at));
            }
        }
        return lines;
    }
};

TEST_F(StartupReport, WritesABlockForEachRowWithALineBetweenThem) {
    PutShortcut(Machine(), LiveLM, "a.lnk", "C:\\Tools\\a.exe", "/x");
    SetHeld(Hive::LocalMachine, "b", "gone.exe /y");
    Open();
    EXPECT_EQ(Printed(), std::string("Startup Item      : a.lnk\r\n"
                                     "Enabled           : Yes\r\n"
                                     "Location          : All Users Startup Folder\r\n"
                                     "Command           : \"C:\\Tools\\a.exe\" /x\r\n"
                                     "File Name         : a.exe\r\n"
                                     "Size (Kb)         : 0.0\r\n"
                                     "Created on        : 05/07/2003\r\n"
                                     "Company Name      : Works\r\n"
                                     "Product Name      : Suite\r\n"
                                     "Description       : Watches\r\n"
                                     "Path              : C:\\Tools\\\r\n"
                                     "Product Name      : Suite\r\n"
                                     "Product Version   : 9\r\n"
                                     "File Description  : Watches\r\n"
                                     "File Version      : 1.2.3\r\n"
                                     "Internal Name     : \r\n"
                                     "Original Filename : \r\n"
                                     "Comments          : \r\n"
                                     "Company Name      : Works\r\n"
                                     "Legal Copyright   : \r\n"
                                     "Legal Trademarks  : \r\n"
                                     "Private Build     : \r\n"
                                     "Special Build     : \r\n"
                                     "\r\n"
                                     "Startup Item      : b\r\n"
                                     "Enabled           : No\r\n"
                                     "Location          : \r\n"
                                     "Command           : gone.exe /y\r\n"
                                     "File Name         : \r\n"
                                     "Size (Kb)         : \r\n"
                                     "Created on        : \r\n"
                                     "Company Name      : \r\n"
                                     "Product Name      : \r\n"
                                     "Description       : \r\n"
                                     "Path              : \r\n") +
                             NoVersion);
}

TEST_F(StartupReport, HasWordsForTheFoldersAlone) {
    for (const RunKey& key : RunKeys) {
        Machine().SetValue(key.hive, std::string(LiveRun) + key.suffix, "x", "");
    }
    PutShortcut(Machine(), HeldCU, "a.lnk", "C:\\Tools\\a.exe");
    PutShortcut(Machine(), LiveLM, "b.lnk", "C:\\Tools\\a.exe");
    Open();
    RowTexts expected = {"Location          : Current User Startup Folder",
                         "Location          : All Users Startup Folder"};
    expected.insert(expected.end(), RunKeys.size(), "Location          : ");
    EXPECT_EQ(Lines("Location"), expected);
}

TEST_F(StartupReport, MarksTheSuspiciousThatAreOn) {
    program.AddInstalledFile("SusProcess.vkl").Content(Md5OfAbc);
    SetRun(Hive::LocalMachine, "a", "C:\\Tools\\a.exe");
    SetHeld(Hive::LocalMachine, "b", "C:\\Tools\\a.exe");
    SetRun(Hive::LocalMachine, "c", "");
    Open();
    EXPECT_EQ(Lines("Startup Item"), (RowTexts{"Startup Item      : a *******[Risk]*******",
                                               "Startup Item      : b", "Startup Item      : c"}));
}

TEST_F(StartupReport, ListsTheRowsThatAreShownInTheirOrder) {
    SetRun(Hive::LocalMachine, "a", "");
    SetRun(Hive::LocalMachine, "b", "");
    SetRun(Hive::CurrentUser, "c", "");
    Open();
    ClickNode("HKLM");
    List().UserColumnClick(1);
    EXPECT_EQ(Lines("Startup Item"), (RowTexts{"Startup Item      : b", "Startup Item      : a"}));
}

// The version is read anew; the rest repeats the row.
TEST_F(StartupReport, ShowsTheFileAsItIsAtThatMoment) {
    SetRun(Hive::LocalMachine, "a", "C:\\Tools\\a.exe");
    Open();
    Machine().AddFile("C:\\Tools\\a.exe").Version({{"CompanyName", "Others"}});
    EXPECT_EQ(Lines("Company Name"),
              (RowTexts{"Company Name      : Works", "Company Name      : Others"}));
}

TEST_F(StartupReport, TellsWhyItCanNotBeWritten) {
    SetRun(Hive::LocalMachine, "a", "");
    Machine().AddFile(Path).Content("old").ReadOnly();
    Open();
    EXPECT_FALSE(Page().printReport(Path));
    EXPECT_EQ(Messages(), (RowTexts{"Error Occurred Startup printReport: \r\n" +
                                    ErrorText(error::AccessDenied)}));
    EXPECT_EQ(program.desktop.messages.at(0).icon, MessageIcon::Information);
    EXPECT_EQ(TextOf(Path), "old");
}

TEST_F(StartupReport, IsAppended) {
    SetRun(Hive::LocalMachine, "a", "");
    Machine().AddFile(Path).Content("before\r\n");
    Open();
    EXPECT_TRUE(Page().printReport(Path));
    EXPECT_EQ(TextOf(Path).substr(0, 24), "before\r\nStartup Item    ");
}

TEST_F(StartupReport, SaysThatThereIsNothingToPrint) {
    Open();
    Click("cmdReport");
    EXPECT_EQ(Messages(), (RowTexts{"No Startup items to print"}));
    EXPECT_EQ(program.desktop.messages.at(0).icon, MessageIcon::Information);
    EXPECT_TRUE(program.desktop.saveRequests.empty());
}

TEST_F(StartupReport, IsWrittenWhereTheUserSaysAndOpened) {
    SetRun(Hive::LocalMachine, "a", "");
    Open();
    Click("cmdReport");  // cancelled
    EXPECT_FALSE(HasFile(Path));
    program.desktop.nextSaveFile = Path;
    Click("cmdReport");
    ASSERT_EQ(program.desktop.saveRequests.size(), 2u);
    EXPECT_EQ(program.desktop.saveRequests[1].filterName, "Text File (*.txt)");
    EXPECT_EQ(program.desktop.saveRequests[1].pattern, "*.txt");
    EXPECT_EQ(program.desktop.saveRequests[1].fileName, "Startup Report.txt");
    EXPECT_EQ(TextOf(Path).find("Startup Report Generated by : Velkarix\r\n"), 0u);
    EXPECT_NE(TextOf(Path).find("\r\n\r\nStartup Item      : a\r\n"), std::string::npos);
    ASSERT_EQ(Machine().shell.Opened().size(), 1u);
    EXPECT_EQ(Machine().shell.Opened()[0], (ShellOpening{0, "Open", Path, "", "", 1}));
}

}  // namespace
}  // namespace velkarix
