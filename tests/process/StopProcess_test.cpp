#include "process/StopProcess.h"

#include <gtest/gtest.h>

#include "tests/machine/TestProgram.h"

namespace velkarix {
namespace {

class StopProcessTest : public testing::Test {
  protected:
    StopProcessTest() { program.machine.AddProcess(7, "C:\\a.exe"); }
    bool Stop() { return StopProcess(program.application, 7); }
    void ExpectCritical(const std::string& text) {
        ASSERT_EQ(program.desktop.messages.size(), 1u);
        EXPECT_EQ(program.desktop.messages[0].text, text);
        EXPECT_EQ(program.desktop.messages[0].icon, MessageIcon::Critical);
        EXPECT_EQ(program.machine.processes.OpenHandleCount(), 0u);
        EXPECT_FALSE(program.machine.token.IsPrivilegeEnabled("SeDebugPrivilege"));
        EXPECT_EQ(program.machine.clock.SleptMilliseconds(), 0u);
    }
    TestProgram program;
};

TEST_F(StopProcessTest, StopsWithTheCodeThatItReadAndWaitsASecond) {
    EXPECT_TRUE(Stop());
    EXPECT_EQ(program.machine.processes.StoppedWith(7), 259u);
    EXPECT_EQ(program.machine.clock.SleptMilliseconds(), 1000u);
    EXPECT_EQ(program.machine.Journal().ArgumentsOf("OpenProcess")[0], "1025, 7");
    EXPECT_EQ(program.machine.processes.OpenHandleCount(), 0u);
    EXPECT_TRUE(program.desktop.messages.empty());
}

TEST_F(StopProcessTest, HoldsThePrivilegeWhileItWorksAndNoLonger) {
    Stop();
    EXPECT_EQ(program.machine.Journal().CountOf("AdjustTokenPrivileges"), 2u);
    EXPECT_FALSE(program.machine.token.IsPrivilegeEnabled("SeDebugPrivilege"));
}

TEST_F(StopProcessTest, SaysThatTheProcessCanNotBeOpened) {
    program.machine.processes.End(7);
    EXPECT_FALSE(Stop());
    ExpectCritical("Error occurred while opening process: The parameter is incorrect.\r\n");
}

TEST_F(StopProcessTest, SaysThatItsStateCanNotBeRead) {
    program.machine.FailNext("GetExitCodeProcess", error::AccessDenied);
    EXPECT_FALSE(Stop());
    ExpectCritical("Error occurred while Exit code process: Access is denied.\r\n");
}

TEST_F(StopProcessTest, SaysThatTheSystemRefuses) {
    program.machine.AddProcess(7, "C:\\a.exe").Protected();
    EXPECT_FALSE(Stop());
    ExpectCritical("Error occurred while terminating process: Access is denied.\r\n");
}

TEST_F(StopProcessTest, TriesAlsoOnThe95FamilyWithoutThePrivilege) {
    program.machine.SetFamily(Family::Windows95);
    EXPECT_TRUE(Stop());
    EXPECT_EQ(program.machine.Journal().CountOf("OpenProcessToken"), 0u);
}

TEST_F(StopProcessTest, KnowsWhetherAProcessRuns) {
    EXPECT_TRUE(ProcessRuns(program.application.machine, 7));
    EXPECT_FALSE(ProcessRuns(program.application.machine, 8));
    program.machine.FailNext("GetExitCodeProcess");
    EXPECT_FALSE(ProcessRuns(program.application.machine, 7));
    EXPECT_EQ(program.machine.processes.OpenHandleCount(), 0u);
}

}  // namespace
}  // namespace velkarix
