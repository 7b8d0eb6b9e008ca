#include "process/ProcessEntries.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/machine/MemoryMachine.h"

namespace velkarix {
namespace {

constexpr const char* Xp = "Microsoft Windows XP";
constexpr const char* Me = "Microsoft Windows Millennium Edition";

TEST(ListsBySnapshot, LooksAtTheTextOfTheNameAlone) {
    for (const char* name : {"Microsoft Windows 95", "Microsoft Windows 98",
                             "Microsoft Windows 98 Second Edition", Me, "Build 1950"}) {
        EXPECT_TRUE(ListsBySnapshot(name)) << name;
    }
    for (const char* name :
         {"Microsoft Windows NT 3.51", "Microsoft Windows NT 4.0", "Microsoft Windows 2000", Xp,
          "Microsoft Windows Sever 2003", "", "millennium"}) {
        EXPECT_FALSE(ListsBySnapshot(name)) << name;
    }
}

class ModuleListingTest : public testing::Test {
  protected:
    ProcessEntries List() { return ListProcesses(machine.Parts(), Xp); }
    MemoryMachine machine;
};

TEST_F(ModuleListingTest, GivesPathAndIdInTheSystemsOrder) {
    machine.AddProcess(8, "C:\\WINDOWS\\b.exe");
    machine.AddProcess(4, "C:\\WINDOWS\\a.exe");
    EXPECT_EQ(List(), (ProcessEntries{{"C:\\WINDOWS\\b.exe", 8}, {"C:\\WINDOWS\\a.exe", 4}}));
}

TEST_F(ModuleListingTest, HoldsThePrivilegeForTheListingAlone) {
    List();
    EXPECT_EQ(machine.Journal().CountOf("AdjustTokenPrivileges"), 2u);
    EXPECT_FALSE(machine.token.IsPrivilegeEnabled("SeDebugPrivilege"));
}

TEST_F(ModuleListingTest, GoesOnWithoutThePrivilege) {
    machine.AddProcess(4, "C:\\a.exe");
    machine.FailNext("OpenProcessToken");
    EXPECT_EQ(List().size(), 1u);
}

TEST_F(ModuleListingTest, EndsAtTheFirstReplyThatLeavesRoom) {
    machine.AddProcess(1, "C:\\a.exe");
    machine.AddProcess(2, "C:\\b.exe");
    EXPECT_EQ(List().size(), 2u);
    EXPECT_EQ(machine.Journal().CountOf("EnumProcesses"), 1u);
}

TEST_F(ModuleListingTest, AsksOnceMoreWhenTheIdsJustFill) {
    for (ProcessId id = 1; id <= 4; ++id) machine.AddProcess(id, "C:\\a.exe");
    EXPECT_EQ(List().size(), 4u);
    EXPECT_EQ(machine.Journal().CountOf("EnumProcesses"), 2u);
}

TEST_F(ModuleListingTest, DoublesTheBufferUntilAllFit) {
    for (ProcessId id = 1; id <= 300; ++id) machine.AddProcess(id, "C:\\a.exe");
    EXPECT_EQ(List().size(), 300u);
    EXPECT_EQ(machine.Journal().CountOf("EnumProcesses"), 8u);  // 4 ids, 8, 16 ... 512
}

TEST_F(ModuleListingTest, PassesOverWhatCanNotBeOpenedOrRead) {
    machine.AddProcess(1, "C:\\other.exe").NotOpenable();
    machine.AddProcess(2, "C:\\kernel.exe").ModulesUnreadable();
    machine.AddProcess(3, "C:\\gone.exe").EndsBeforeOpening();
    machine.AddProcess(5, "C:\\seen.exe");
    EXPECT_EQ(List(), (ProcessEntries{{"C:\\seen.exe", 5}}));
    EXPECT_EQ(machine.processes.OpenHandleCount(), 0u);
}

TEST_F(ModuleListingTest, ClosesEveryHandleAlsoTheOneThatItDidNotGet) {
    machine.AddProcess(1, "C:\\other.exe").NotOpenable();
    machine.AddProcess(5, "C:\\seen.exe");
    List();
    EXPECT_EQ(machine.Journal().CountOf("CloseHandle"), 2u);
}

TEST_F(ModuleListingTest, CleansPathsButKeepsNativeOnes) {
    machine.system.SetVariable("TOOLS", "D:\\Tools");
    machine.AddProcess(1, "%TOOLS%\\a.exe");
    machine.AddProcess(2, "\\??\\C:\\WINDOWS\\system32\\csrss.exe");
    machine.AddProcess(3, "\\SystemRoot\\System32\\smss.exe");
    EXPECT_EQ(List(), (ProcessEntries{{"D:\\Tools\\a.exe", 1},
                                      {"\\??\\C:\\WINDOWS\\system32\\csrss.exe", 2},
                                      {"\\SystemRoot\\System32\\smss.exe", 3}}));
}

TEST_F(ModuleListingTest, CutsAPathAtTwoHundredAndSixtyCharacters) {
    const std::string path = "C:\\" + std::string(400, 'x') + ".exe";
    machine.AddProcess(1, path);
    EXPECT_EQ(List(), (ProcessEntries{{path.substr(0, 260), 1}}));
}

TEST_F(ModuleListingTest, KeepsNamesInTheUpperHalfOfTheCodePage) {
    machine.AddProcess(1,
                       "C:\\Pr\xFC"
                       "fung\\\xC4\xD6.exe");
    EXPECT_EQ(List()[0].path,
              "C:\\Pr\xFC"
              "fung\\\xC4\xD6.exe");
}

TEST_F(ModuleListingTest, ShowsNothingWhereTheLibraryIsMissing) {
    machine.AddProcess(1, "C:\\a.exe");
    machine.processes.SetHasPsapi(false);
    EXPECT_TRUE(List().empty());
}

TEST_F(ModuleListingTest, KeepsAnEntryWhoseNameCanNotBeRead) {
    machine.AddProcess(1, "C:\\a.exe");
    machine.FailNext("GetModuleFileNameExA");
    EXPECT_EQ(List(), (ProcessEntries{{"", 1}}));
}

class SnapshotListingTest : public testing::Test {
  protected:
    ProcessEntries List() { return ListProcesses(machine.Parts(), Me); }
    MemoryMachine machine{NamedSystem::WindowsMillennium};
};

TEST_F(SnapshotListingTest, GivesPathAndIdInTheSystemsOrder) {
    machine.AddProcess(0xFFFEBC01, "C:\\WINDOWS\\SYSTEM\\KERNEL32.DLL");
    machine.AddProcess(4, "C:\\WINDOWS\\EXPLORER.EXE");
    EXPECT_EQ(List(), (ProcessEntries{{"C:\\WINDOWS\\SYSTEM\\KERNEL32.DLL", 0xFFFEBC01},
                                      {"C:\\WINDOWS\\EXPLORER.EXE", 4}}));
}

TEST_F(SnapshotListingTest, AsksForNoPrivilege) {
    machine.AddProcess(4, "C:\\a.exe");
    List();
    EXPECT_EQ(machine.Journal().Names(),
              (std::vector<std::string>{"CreateToolhelp32Snapshot", "Process32First",
                                        "Process32Next", "CloseHandle"}));
    EXPECT_EQ(machine.processes.OpenHandleCount(), 0u);
}

TEST_F(SnapshotListingTest, ShowsNothingWithoutASnapshot) {
    machine.AddProcess(4, "C:\\a.exe");
    machine.processes.SetHasToolhelp(false);
    EXPECT_TRUE(List().empty());
    EXPECT_EQ(machine.Journal().CountOf("Process32First"), 0u);
}

TEST_F(SnapshotListingTest, CutsAPathThatIsTooLongForTheSystem) {
    const std::string path = "C:\\" + std::string(300, 'x');
    machine.AddProcess(1, path);
    EXPECT_EQ(List(), (ProcessEntries{{path.substr(0, 259), 1}}));
}

// A system that fills the whole field leaves no room for the NUL.
class UnendedNames : public MemoryProcesses {
  public:
    using MemoryProcesses::MemoryProcesses;
    bool Process32First(SnapshotHandle, ProcessSnapshotEntry& entry) override {
        entry = {7, std::string(260, 'x')};
        return true;
    }
};

TEST_F(SnapshotListingTest, DropsTheLastOfTwoHundredAndSixtyCharacters) {
    UnendedNames processes(machine.Journal());
    const Machine all = machine.Parts();
    const Machine parts{all.registry, all.profileFiles, all.versionResources,
                        all.files,    all.clock,        processes,
                        all.token,    all.shell,        all.shortcuts,
                        all.system,   all.windows,      all.cryptography};
    EXPECT_EQ(ListProcesses(parts, Me), (ProcessEntries{{std::string(259, 'x'), 7}}));
}

}  // namespace
}  // namespace velkarix
