#include "utilities/ToolLaunchers.h"

#include "tests/utilities/UtilitiesPage.h"

namespace velkarix {
namespace {

using Texts = std::vector<std::string>;

struct Expected {
    const char* frame;
    const char* caption;
    const char* label;
    const char* text;
    const char* button;
    const char* buttonCaption;
    const char* tested;
    const char* launched;
    const char* missing;
};

const Expected Tools[] = {
    {"fmHosts", "Hosts File Editor", "lblHosts",
     "Hosts file is used by Windows to map IP address with domain name. Many Spyware add entries "
     "in this file to redirect a url to their site, also an entry can be added in this file to "
     "prevent loading a website.",
     "cmdHosts", "Hosts File Editor", "Tesselin.exe", "Tesselin.exe",
     "Hosts File Editor utlity not found."},
    {"fmLSP", "Repair Winsock LSP (Layered Service Provider)", "lblLSP",
     "Some Spyware add files in Winsock LSP chain. Due to some reason like bad uninstallation, "
     "this chain breaks down leading to inability to access internet.Please read carefully the "
     "instructions on Repair LSP. ",
     "cmdRepairLSP", "Repair LSP", "quillate.exe", "Quillate.exe", "Repair LSP utlity not found."},
};

class ToolLaunchersTest : public UtilitiesPage {};

TEST_F(ToolLaunchersTest, HaveTheirWordsOnThePage) {
    Open();
    for (const Expected& each : Tools) {
        EXPECT_EQ(TextOf(each.frame), each.caption);
        EXPECT_EQ(TextOf(each.label), each.text);
        EXPECT_EQ(TextOf(each.button), each.buttonCaption);
    }
}

TEST_F(ToolLaunchersTest, StartTheirToolWithoutWaitingAndAgainOnASecondClick) {
    Open();
    for (const Expected& each : Tools) {
        program.AddInstalledFile(each.tested).Content("MZ");
        const std::size_t before = Launches().size();
        Click(each.button);
        Click(each.button);
        const std::string command = std::string("\"C:\\Velkarix\\") + each.launched + "\"";
        EXPECT_EQ(Launches().size(), before + 2);
        for (std::size_t i = before; i < Launches().size(); ++i) {
            EXPECT_EQ(Launches()[i], command);
            EXPECT_EQ(program.machine.shell.Launched()[i].showCommand, 1);
        }
    }
    EXPECT_EQ(Told(), Texts{});
}

TEST_F(ToolLaunchersTest, TestForTheirToolUnderTheNameThatTheyTest) {
    Open();
    for (const Expected& each : Tools) {
        program.machine.Journal().Clear();
        Click(each.button);
        EXPECT_EQ(program.machine.Journal().ArgumentsOf("PathFileExistsA"),
                  Texts{std::string("C:\\Velkarix\\") + each.tested});
    }
}

TEST_F(ToolLaunchersTest, SayThatTheirToolIsMissing) {
    Open();
    for (const Expected& each : Tools) {
        program.desktop.messages.clear();
        Click(each.button);
        EXPECT_EQ(Told(), Texts{each.missing});
        EXPECT_EQ(program.desktop.messages[0].icon, MessageIcon::Critical);
        EXPECT_EQ(program.desktop.messages[0].title, "Velkarix");
        EXPECT_EQ(program.desktop.messages[0].buttons, MessageButtons::Ok);
    }
    EXPECT_EQ(Launches(), Texts{});
}

TEST_F(ToolLaunchersTest, FindTheirToolInAFolderWithBlanks) {
    program.machine.system.SetProgramPath("C:\\Program Files\\My Tools\\Velkarix.exe");
    program.machine.AddFile("C:\\Program Files\\My Tools\\Tesselin.exe");
    program.machine.AddFile("C:\\Program Files\\My Tools\\QUILLATE.EXE");
    Open();
    Click("cmdHosts");
    Click("cmdRepairLSP");
    EXPECT_EQ(Launches(), (Texts{"\"C:\\Program Files\\My Tools\\Tesselin.exe\"",
                                 "\"C:\\Program Files\\My Tools\\Quillate.exe\""}));
    EXPECT_EQ(Told(), Texts{});
}

TEST_F(ToolLaunchersTest, EndTheProgramWhereTheirToolDoesNotStart) {
    Open();
    program.AddInstalledFile("Tesselin.exe").Content("text");
    program.machine.FailNext("WinExec", 11);
    Click("cmdHosts");
    EXPECT_EQ(Told(), Texts{"Run-time error '53':\r\n\r\nFile not found"});
    EXPECT_TRUE(program.desktop.quit);
}

}  // namespace
}  // namespace velkarix
