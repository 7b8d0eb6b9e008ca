// What the main window says of places that couldn't be read.
#include <gtest/gtest.h>

#include <string>

#include "forms/ProgressBar.h"
#include "tests/machine/TestProgram.h"

namespace velkarix {
namespace {

class UnreadLine : public testing::Test {
  protected:
    UnreadLine() { program.machine.AddProcess(4, "C:\\Velkarix\\Velkarix.exe"); }
    LinkLabel& Line() { return program.Get<LinkLabel>("frmMain", "lblUnread"); }
    UnreadPlaces& Unread() { return program.application.unread; }
    void ClickPage(const char* button) { program.Get<Button>("frmMain", button).Raise("Click"); }
    std::string LastMessage() { return program.desktop.messages.back().text; }

    TestProgram program;
};

TEST_F(UnreadLine, IsNotThereWhileEverythingCouldBeRead) {
    program.Start();
    EXPECT_FALSE(Line().Visible());
    for (const char* page : {"cmdIE", "cmdStartup", "cmdAddremove", "cmdOptions"}) {
        ClickPage(page);
        EXPECT_FALSE(Line().Visible()) << page;
    }
}

TEST_F(UnreadLine, CountsThePlacesAndNamesThemOnAClick) {
    program.Start();
    Unread().Note("C:\\Two", "", false);
    EXPECT_TRUE(Line().Visible());
    EXPECT_EQ(Line().Text(), "1 place could not be read");
    Unread().Note("C:\\One", "", false);
    EXPECT_EQ(Line().Text(), "2 places could not be read");
    Line().Raise("Click");
    EXPECT_EQ(LastMessage(),
              "What is in these places could not be read, and is not shown:\r\n\r\n"
              "C:\\One\r\nC:\\Two\r\n");
    EXPECT_EQ(program.desktop.messages.back().icon, MessageIcon::Information);
    for (const char* place : {"C:\\One", "C:\\Two"}) Unread().Note(place, "", true);
    EXPECT_FALSE(Line().Visible());
}

TEST_F(UnreadLine, GivesItsPlaceToTheBarMeanwhile) {
    program.Start();
    Unread().Note("C:\\One", "", false);
    {
        Progress::Work work(program.application.progress, "Items", 2);
        program.machine.clock.Sleep(1000);
        work.Step("item");
        EXPECT_TRUE(program.Get<ProgressBar>("frmMain", "barProgress").Visible());
        EXPECT_FALSE(Line().Visible());
        Unread().Note("C:\\Two", "", false);
        EXPECT_FALSE(Line().Visible());
    }
    EXPECT_FALSE(program.Get<ProgressBar>("frmMain", "barProgress").Visible());
    EXPECT_TRUE(Line().Visible());
    EXPECT_EQ(Line().Text(), "2 places could not be read");
}

TEST_F(UnreadLine, NamesNoMoreThanAScreenHolds) {
    program.Start();
    for (int i = 10; i < 35; ++i) Unread().Note("place " + std::to_string(i), "", false);
    Line().Raise("Click");
    EXPECT_NE(LastMessage().find("place 29\r\nand 5 more"), std::string::npos) << LastMessage();
    EXPECT_EQ(LastMessage().find("place 30"), std::string::npos);
}

TEST_F(UnreadLine, TellsADeniedRunKeyFromAnEmptyOne) {
    program.Start();
    program.machine.FailNext("RegOpenKeyExA");
    ClickPage("cmdStartup");
    EXPECT_EQ(Line().Text(), "1 place could not be read");
    Line().Raise("Click");
    EXPECT_NE(LastMessage().find("HKEY_LOCAL_MACHINE\\Software\\Microsoft\\Windows\\"
                                 "CurrentVersion\\Run\r\n"),
              std::string::npos)
        << LastMessage();
    program.Get<Button>("frmStartup", "cmdRefresh").Raise("Click");
    EXPECT_FALSE(Line().Visible());
}

TEST_F(UnreadLine, TellsAListOfDefinitionsThatIsHeldByAnother) {
    program.AddInstalledFile("SusProcess.vkl").Content("abc\r\n").Unreadable();
    program.AddInstalledFile("SafeProcess.vkl").Content("abc\r\n").Unreadable();
    program.Start();
    EXPECT_EQ(Unread().Names(), (std::vector<std::string>{"C:\\Velkarix\\SafeProcess.vkl",
                                                          "C:\\Velkarix\\SusProcess.vkl"}));
}

TEST_F(UnreadLine, TellsAListOfProcessesThatHoldsNone) {
    program.machine.FailAlways("EnumProcesses");
    program.Start();
    EXPECT_EQ(Unread().Names(), std::vector<std::string>{"The running processes"});
}

}  // namespace
}  // namespace velkarix
