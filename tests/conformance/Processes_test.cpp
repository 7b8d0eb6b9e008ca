#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "tests/conformance/Home.h"

namespace velkarix {
namespace {

constexpr std::uint32_t readAccess = 1040;  // query information, read memory
constexpr std::uint32_t queryAccess = 1024;
constexpr std::uint32_t stopAccess = 1025;  // terminate, query information
constexpr std::uint32_t stillActive = 259;
constexpr std::uint32_t processesFlag = 2;

}  // namespace

class ProcessConformance : public Conformance {
  protected:
    std::vector<ProcessId> AllIds() {
        std::vector<ProcessId> ids(1024);
        std::uint32_t used = 0;
        if (!processes_.EnumProcesses(ids, used)) {
            return {};
        }
        ids.resize(used / sizeof(ProcessId));
        return ids;
    }

    Processes& processes_ = machine_.processes;
    ProcessId own_ = home_->OwnProcessId();
    std::string path_ = machine_.system.GetModuleFileNameA();
};

INSTANTIATE_TEST_SUITE_P(Home, ProcessConformance, testing::ValuesIn(FamiliesOfHome()),
                         NameOfFamily);

// The module way is the NT family's. Wine has it under every name, so that the 95 family has no
// PSAPI isn't asserted here.
class ModuleConformance : public ProcessConformance {};

GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(ModuleConformance);
INSTANTIATE_TEST_SUITE_P(Home, ModuleConformance, testing::ValuesIn(Only(Family::WindowsNt)),
                         NameOfFamily);

TEST_P(ProcessConformance, OneWayOfListingIsThere) {
    const SnapshotHandle snapshot = processes_.CreateToolhelp32Snapshot(processesFlag, 0);
    EXPECT_TRUE(snapshot != 0 || !AllIds().empty());
    processes_.CloseHandle(snapshot);
}

TEST_P(ModuleConformance, ThisProcessIsListedById) {
    const std::vector<ProcessId> ids = AllIds();
    EXPECT_EQ(std::count(ids.begin(), ids.end(), own_), 1);
}

TEST_P(ModuleConformance, ASmallBufferIsFilledToItsEnd) {
    const std::vector<ProcessId> all = AllIds();
    ASSERT_GE(all.size(), 2u);
    std::vector<ProcessId> ids(1);
    std::uint32_t used = 0;
    ASSERT_TRUE(processes_.EnumProcesses(ids, used));
    EXPECT_EQ(used, sizeof(ProcessId));
    EXPECT_EQ(ids.front(), all.front());
}

TEST_P(ModuleConformance, AnOpenProcessTellsThePathOfItsProgram) {
    const ProcessHandle process = processes_.OpenProcess(readAccess, own_);
    ASSERT_NE(process, 0u);
    std::vector<ModuleHandle> modules(50);
    ASSERT_TRUE(processes_.EnumProcessModules(process, modules));
    EXPECT_EQ(processes_.GetModuleFileNameExA(process, modules.front(), 500), path_);
    EXPECT_EQ(processes_.GetModuleFileNameExA(process, modules.front(), 5), path_.substr(0, 4));
    EXPECT_TRUE(processes_.CloseHandle(process));
    EXPECT_FALSE(processes_.EnumProcessModules(process, modules));
}

TEST_P(ModuleConformance, ModulesNeedTheRightToReadMemory) {
    const ProcessHandle process = processes_.OpenProcess(1, own_);
    ASSERT_NE(process, 0u);
    std::vector<ModuleHandle> modules(50);
    EXPECT_FALSE(processes_.EnumProcessModules(process, modules));
    processes_.CloseHandle(process);
}

TEST_P(ProcessConformance, AProcessThatIsNotThereIsNotOpened) {
    EXPECT_EQ(processes_.OpenProcess(readAccess, 0), 0u);
    EXPECT_EQ(processes_.OpenProcess(readAccess, 0x7FFFFFF1), 0u);
}

TEST_P(ProcessConformance, ClosingNoHandleFails) {
    EXPECT_FALSE(processes_.CloseHandle(0));
}

TEST_P(ProcessConformance, ASnapshotHoldsThisProcess) {
    const SnapshotHandle snapshot = processes_.CreateToolhelp32Snapshot(processesFlag, 0);
    ASSERT_NE(snapshot, 0u);
    int seen = 0;
    ProcessSnapshotEntry entry;
    for (bool more = processes_.Process32First(snapshot, entry); more;
         more = processes_.Process32Next(snapshot, entry)) {
        ASSERT_EQ(entry.exeFile.size(), 260u);
        if (entry.id == own_) {
            ++seen;
            // The 95 family tells the whole path here. Wine gives the bare name as NT does, so
            // only what both have in common is asserted.
            const std::string file = entry.exeFile.substr(0, entry.exeFile.find('\0'));
            EXPECT_TRUE(path_.ends_with(file)) << file;
            EXPECT_NE(file, "");
        }
    }
    EXPECT_EQ(seen, 1);
    EXPECT_TRUE(processes_.CloseHandle(snapshot));
    EXPECT_FALSE(processes_.Process32First(snapshot, entry));
}

TEST_P(ProcessConformance, ASnapshotStartsAgainWithItsFirstEntry) {
    const SnapshotHandle snapshot = processes_.CreateToolhelp32Snapshot(processesFlag, 0);
    ASSERT_NE(snapshot, 0u);
    ProcessSnapshotEntry first;
    ProcessSnapshotEntry again;
    ASSERT_TRUE(processes_.Process32First(snapshot, first));
    processes_.Process32Next(snapshot, again);
    ASSERT_TRUE(processes_.Process32First(snapshot, again));
    EXPECT_EQ(again.id, first.id);
    processes_.CloseHandle(snapshot);
}

TEST_P(ProcessConformance, ARunningProcessHasTheCodeOfOne) {
    const ProcessHandle process = processes_.OpenProcess(stopAccess, home_->StartProcess());
    ASSERT_NE(process, 0u);
    EXPECT_EQ(processes_.GetExitCodeProcess(process), stillActive);
    EXPECT_TRUE(processes_.CloseHandle(process));
}

TEST_P(ProcessConformance, AStoppedProcessEndsWithTheCodeThatItWasGiven) {
    const ProcessHandle process = processes_.OpenProcess(stopAccess, home_->StartProcess());
    EXPECT_TRUE(processes_.TerminateProcess(process, 77));
    machine_.clock.Sleep(200);
    EXPECT_EQ(processes_.GetExitCodeProcess(process), 77u);
    EXPECT_TRUE(processes_.CloseHandle(process));
}

TEST_P(ProcessConformance, AProcessThatIsNotThereGivesTheErrorOfAWrongParameter) {
    EXPECT_EQ(processes_.OpenProcess(stopAccess, 0x7FFFFFF0), 0u);
    EXPECT_EQ(processes_.GetLastError(), error::InvalidParameter);
}

TEST_P(ProcessConformance, NoHandleHasNoExitCodeAndIsNotStopped) {
    EXPECT_FALSE(processes_.GetExitCodeProcess(0).has_value());
    EXPECT_EQ(processes_.GetLastError(), error::InvalidHandle);
    EXPECT_FALSE(processes_.TerminateProcess(0, 1));
    EXPECT_EQ(processes_.GetLastError(), error::InvalidHandle);
}

TEST_P(ModuleConformance, StoppingNeedsTheRightToStop) {
    const ProcessHandle process = processes_.OpenProcess(queryAccess, home_->StartProcess());
    EXPECT_FALSE(processes_.TerminateProcess(process, 1));
    EXPECT_EQ(processes_.GetLastError(), error::AccessDenied);
    processes_.CloseHandle(process);
}

}  // namespace velkarix
