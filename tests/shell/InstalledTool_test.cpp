#include "shell/InstalledTool.h"

#include <gtest/gtest.h>

#include "tests/machine/TestProgram.h"

namespace velkarix {
namespace {

constexpr InstalledTool Tool{"\\tool.exe", "\\Tool.exe", "No tool."};

class InstalledToolTest : public testing::Test {
  protected:
    const std::vector<Message>& Told() { return program.desktop.messages; }
    TestProgram program;
};

TEST_F(InstalledToolTest, IsFoundByTheNameThatIsTested) {
    program.AddInstalledFile("TOOL.EXE");
    EXPECT_TRUE(FindTool(program.application, Tool));
    EXPECT_EQ(program.machine.Journal().ArgumentsOf("PathFileExistsA"),
              std::vector<std::string>{"C:\\Velkarix\\tool.exe"});
    EXPECT_TRUE(Told().empty());
}

TEST_F(InstalledToolTest, IsMissedInWordsUnlessItIsToBeSilent) {
    EXPECT_FALSE(FindTool(program.application, Tool, true));
    EXPECT_TRUE(Told().empty());
    EXPECT_FALSE(FindTool(program.application, Tool));
    ASSERT_EQ(Told().size(), 1u);
    EXPECT_EQ(Told()[0].text, "No tool.");
    EXPECT_EQ(Told()[0].icon, MessageIcon::Critical);
    EXPECT_EQ(Told()[0].title, "Velkarix");
}

TEST_F(InstalledToolTest, IsFoundOnSystemsWithoutTheShellsCall) {
    program.machine.files.SetHasPathFileExists(false);
    EXPECT_FALSE(FindTool(program.application, Tool, true));
    program.AddInstalledFile("tool.exe");
    EXPECT_TRUE(FindTool(program.application, Tool));
}

TEST_F(InstalledToolTest, IsStartedByItsQuotedPathUnderTheOtherName) {
    program.AddInstalledFile("tool.exe");
    StartTool(program.application, Tool);
    StartTool(program.application, Tool, " -x");
    EXPECT_EQ(program.machine.shell.Launched(),
              (std::vector<Launch>{{"\"C:\\Velkarix\\Tool.exe\"", 1},
                                   {"\"C:\\Velkarix\\Tool.exe\" -x", 1}}));
    EXPECT_TRUE(Told().empty());
}

// What the call gives is an error up to 31.
TEST_F(InstalledToolTest, EndsTheProgramWhereItDoesNotStart) {
    program.AddInstalledFile("tool.exe");
    program.machine.FailNext("WinExec", 32);
    StartTool(program.application, Tool);
    EXPECT_FALSE(program.desktop.quit);
    program.machine.FailNext("WinExec", 31);
    StartTool(program.application, Tool);
    ASSERT_EQ(Told().size(), 1u);
    EXPECT_EQ(Told()[0].text, "Run-time error '53':\r\n\r\nFile not found");
    EXPECT_TRUE(program.desktop.quit);
}

}  // namespace
}  // namespace velkarix
