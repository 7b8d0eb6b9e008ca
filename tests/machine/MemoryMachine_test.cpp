// What no other system can be asked to confirm: the machine's own levers, and the 95 family, which
// no real system at hand plays to the end. The rest is proved by the conformance suite.
#include "tests/machine/MemoryMachine.h"

#include <gtest/gtest.h>

namespace velkarix {

TEST(MemoryMachine, TellsTheVersionOfEachSystem) {
    for (const NamedSystem named : allNamedSystems) {
        MemoryMachine machine(named);
        const auto version = machine.Parts().system.GetVersionExA();
        ASSERT_TRUE(version.has_value());
        EXPECT_EQ(version->platform, FamilyOf(named) == Family::WindowsNt ? 2u : 1u);
        const std::uint32_t number = machine.Parts().system.GetVersion();
        EXPECT_EQ(number & 0xFF, version->major);
        EXPECT_EQ(number >> 8 & 0xFF, version->minor);
        EXPECT_EQ(number >> 16 & 0x3FFF, version->build & 0x3FFF);
    }
}

TEST(MemoryMachine, HasTheLibrariesOfItsSystem) {
    struct Row {
        NamedSystem system;
        bool psapi;
        bool toolhelp;
        bool tokens;
    };
    for (const Row& row : {Row{NamedSystem::Windows98, false, true, false},
                           Row{NamedSystem::WindowsNt40, true, false, true},
                           Row{NamedSystem::WindowsXp, true, true, true}}) {
        MemoryMachine machine(row.system);
        machine.AddProcess(4, "C:\\a.exe");
        const Machine parts = machine.Parts();
        std::vector<ProcessId> ids(4);
        std::uint32_t used = 0;
        EXPECT_EQ(parts.processes.EnumProcesses(ids, used), row.psapi);
        EXPECT_EQ(parts.processes.CreateToolhelp32Snapshot(2, 0) != 0, row.toolhelp);
        EXPECT_EQ(parts.token.OpenProcessToken(parts.token.GetCurrentProcess(), 40) != 0,
                  row.tokens);
        EXPECT_EQ(parts.token.LookupPrivilegeValueA("", "SeDebugPrivilege").has_value(),
                  row.tokens);
    }
}

TEST(MemoryMachine, HasTheReadersOfShortcutsOfItsSystem) {
    struct Row {
        NamedSystem system;
        bool scriptShell;
        bool shellLink;
    };
    for (const Row& row :
         {Row{NamedSystem::Windows95, false, true}, Row{NamedSystem::Windows98, true, true},
          Row{NamedSystem::WindowsNt351, false, false}, Row{NamedSystem::WindowsNt40, false, true},
          Row{NamedSystem::WindowsXp, true, true}}) {
        MemoryMachine machine(row.system);
        EXPECT_EQ(machine.Parts().shortcuts.MakeScriptShell() != nullptr, row.scriptShell);
        EXPECT_EQ(machine.Parts().shortcuts.MakeShellLink() != nullptr, row.shellLink);
    }
}

TEST(MemoryMachine, SetUpIsNotInTheJournalAndTheCallsAre) {
    MemoryMachine machine;
    machine.SetValue(Hive::CurrentUser, "Software\\A", "Name", "text");
    machine.AddFile("C:\\a.txt").Content("x");
    EXPECT_TRUE(machine.Journal().Calls().empty());

    Registry& registry = machine.Parts().registry;
    KeyHandle key = 0;
    registry.RegCreateKeyA(Registry::HandleOf(Hive::CurrentUser), "Software\\A", key);
    registry.RegSetValueExA(key, "Name", registryType::Sz, {0});
    EXPECT_EQ(machine.registry.OpenKeyCount(), 1u);
    registry.RegCloseKey(key);
    EXPECT_EQ(machine.registry.OpenKeyCount(), 0u);
    EXPECT_EQ(machine.Journal().Calls(),
              (std::vector<Call>{{"RegCreateKeyA", "HKCU\\Software\\A"},
                                 {"RegSetValueExA", "HKCU\\Software\\A, Name"},
                                 {"RegCloseKey", "HKCU\\Software\\A"}}));
}

TEST(MemoryMachine, AFailedCallChangesNothing) {
    MemoryMachine machine;
    machine.SetValue(Hive::CurrentUser, "A", "Name", "text");
    const std::string before = machine.registry.TreeText(Hive::CurrentUser, "A");
    const Machine parts = machine.Parts();
    KeyHandle key = 0;
    parts.registry.RegOpenKeyExA(Registry::HandleOf(Hive::CurrentUser), "A", KeyAccess::All, key);

    machine.FailNext("RegSetValueExA", error::AccessDenied);
    EXPECT_EQ(parts.registry.RegSetValueExA(key, "Name", registryType::Sz, {0}),
              error::AccessDenied);
    machine.FailNext("RegDeleteKeyA", error::BadKey);
    EXPECT_EQ(parts.registry.RegDeleteKeyA(Registry::HandleOf(Hive::CurrentUser), "A"),
              error::BadKey);
    machine.FailNext("WritePrivateProfileStringA");
    EXPECT_FALSE(parts.profileFiles.WritePrivateProfileStringA("Main", "Key", "1", "C:\\a.ini"));

    EXPECT_EQ(machine.registry.TreeText(Hive::CurrentUser, "A"), before);
    EXPECT_FALSE(machine.disk.Exists("C:\\a.ini"));
}

TEST(MemoryMachine, ARestrictedKeyIsOpenOnlyForWhatIsAllowed) {
    MemoryMachine machine;
    machine.SetValue(Hive::LocalMachine, "SOFTWARE\\A", "Name", "text");
    machine.registry.Restrict(Hive::LocalMachine, "SOFTWARE\\A", KeyAccess::Read);
    Registry& registry = machine.Parts().registry;
    const KeyHandle hive = Registry::HandleOf(Hive::LocalMachine);
    KeyHandle key = 0;
    EXPECT_EQ(registry.RegOpenKeyExA(hive, "SOFTWARE\\A", KeyAccess::All, key),
              error::AccessDenied);
    EXPECT_EQ(registry.RegOpenKeyExA(hive, "SOFTWARE\\A", KeyAccess::Read, key), error::Success);
    EXPECT_EQ(registry.RegOpenKeyA(hive, "SOFTWARE\\A", key), error::Success);
    EXPECT_EQ(registry.RegSetValueExA(key, "Name", registryType::Sz, {0}), error::AccessDenied);
    EXPECT_EQ(registry.RegDeleteKeyA(hive, "SOFTWARE\\A"), error::AccessDenied);
    EXPECT_EQ(registry.RegCreateKeyA(hive, "SOFTWARE\\A\\New", key), error::AccessDenied);
    machine.registry.Restrict(Hive::LocalMachine, "SOFTWARE\\A", std::nullopt);
    EXPECT_EQ(registry.RegOpenKeyA(hive, "SOFTWARE\\A", key), error::AccessDenied);
}

TEST(MemoryMachine, The95FamilyHasNoRightsAndShorterNames) {
    MemoryMachine machine(NamedSystem::Windows98);
    machine.AddKey(Hive::CurrentUser, "A");
    Registry& registry = machine.Parts().registry;
    KeyHandle key = 0;
    registry.RegOpenKeyExA(Registry::HandleOf(Hive::CurrentUser), "A", KeyAccess::Read, key);
    EXPECT_EQ(registry.RegSetValueExA(key, "Name", registryType::Sz, {0}), error::Success);
    EXPECT_EQ(registry.RegSetValueExA(key, std::string(255, 'v'), registryType::Sz, {0}),
              error::Success);
    EXPECT_EQ(registry.RegSetValueExA(key, std::string(256, 'v'), registryType::Sz, {0}),
              error::InvalidParameter);
}

TEST(MemoryMachine, AKeyNameHasAtMost255Bytes) {
    MemoryMachine machine;
    KeyHandle key = 0;
    EXPECT_EQ(machine.Parts().registry.RegCreateKeyA(Registry::HandleOf(Hive::CurrentUser),
                                                     std::string(256, 'k'), key),
              error::InvalidParameter);
    EXPECT_TRUE(machine.registry.SubKeysOf(Hive::CurrentUser, "").empty());
}

TEST(MemoryMachine, AFileThatIsEmptiedGivesItsRoomBack) {
    MemoryMachine machine;
    machine.AddFile("C:\\file").Content("abc");
    machine.disk.SetFreeBytes(1);
    FileHandle file = 0;
    ASSERT_EQ(machine.files.CreateFileA("C:\\file", FileUse::Replace, file), error::Success);
    std::uint32_t written = 0;
    machine.files.WriteFile(file, Bytes(9), written);
    EXPECT_EQ(written, 4u);
    machine.files.CloseFile(file);
}

TEST(MemoryMachine, APathHasAtMost259BytesAndStartsOnADriveThatIsThere) {
    MemoryMachine machine;
    FileSystem& files = machine.Parts().files;
    FileHandle file = 0;
    EXPECT_EQ(files.CreateFileA("C:\\" + std::string(257, 'p'), FileUse::Replace, file),
              error::PathNotFound);
    EXPECT_EQ(files.CreateFileA("Q:\\a.txt", FileUse::Replace, file), error::PathNotFound);
    EXPECT_EQ(files.CreateFileA("Q:\\a.txt", FileUse::Read, file), error::PathNotFound);
    machine.AddFile("\\\\server\\share\\a.txt");
    EXPECT_EQ(files.CreateFileA("\\\\SERVER\\share\\a.txt", FileUse::Read, file), error::Success);
}

TEST(MemoryMachine, CopyingAKeyBelowItselfEnds) {
    MemoryMachine machine;
    machine.SetValue(Hive::CurrentUser, "A", "Name", "text");
    machine.AddKey(Hive::CurrentUser, "A\\B");
    Registry& registry = machine.Parts().registry;
    KeyHandle below = 0;
    registry.RegOpenKeyExA(Registry::HandleOf(Hive::CurrentUser), "A\\B", KeyAccess::All, below);
    EXPECT_EQ(registry.SHCopyKeyA(Registry::HandleOf(Hive::CurrentUser), "A", below),
              error::Success);
    EXPECT_EQ(machine.registry.TextAt(Hive::CurrentUser, "A\\B", "Name"), "text");
}

TEST(MemoryMachine, CopyingKeysCanBeMissing) {
    MemoryMachine machine;
    machine.AddKey(Hive::CurrentUser, "A");
    machine.registry.SetHasCopyKey(false);
    const KeyHandle hive = Registry::HandleOf(Hive::CurrentUser);
    EXPECT_EQ(machine.Parts().registry.SHCopyKeyA(hive, "A", hive), error::ProcNotFound);
}

TEST(MemoryMachine, ACopyOfAKeyCanBeShortAndReportSuccess) {
    MemoryMachine machine;
    machine.SetValue(Hive::CurrentUser, "A", "Name", "text");
    machine.AddKey(Hive::CurrentUser, "B");
    machine.registry.afterCopy = [&] {
        machine.registry.RemoveValue(Hive::CurrentUser, "B", "Name");
    };
    KeyHandle copy = 0;
    Registry& registry = machine.Parts().registry;
    const KeyHandle hive = Registry::HandleOf(Hive::CurrentUser);
    registry.RegOpenKeyExA(hive, "B", KeyAccess::All, copy);
    EXPECT_EQ(registry.SHCopyKeyA(hive, "A", copy), error::Success);
    EXPECT_FALSE(machine.registry.ValueAt(Hive::CurrentUser, "B", "Name").has_value());
}

TEST(MemoryMachine, AProcessCanEndBetweenListingAndOpening) {
    MemoryMachine machine;
    machine.AddProcess(4, "C:\\a.exe").EndsBeforeOpening();
    machine.AddProcess(8, "C:\\b.exe").NotOpenable();
    machine.AddProcess(12, "C:\\c.exe");
    Processes& processes = machine.Parts().processes;
    std::vector<ProcessId> ids(8);
    std::uint32_t used = 0;
    ASSERT_TRUE(processes.EnumProcesses(ids, used));
    EXPECT_EQ(used, 12u);
    EXPECT_EQ(processes.OpenProcess(1040, 4), 0u);
    EXPECT_FALSE(machine.processes.IsRunning(4));
    EXPECT_EQ(processes.OpenProcess(1040, 8), 0u);
    const ProcessHandle process = processes.OpenProcess(1040, 12);
    EXPECT_NE(process, 0u);
    EXPECT_EQ(machine.processes.OpenHandleCount(), 1u);
    processes.CloseHandle(process);
    EXPECT_EQ(machine.processes.OpenHandleCount(), 0u);
}

TEST(MemoryMachine, ASnapshotTellsThePathByTheFamilyAndLeavesTheRestOfTheField) {
    MemoryMachine machine(NamedSystem::Windows98);
    machine.AddProcess(4, "C:\\a.exe");
    Processes& processes = machine.Parts().processes;
    ProcessSnapshotEntry entry{0, std::string(260, 'x')};
    ASSERT_TRUE(processes.Process32First(processes.CreateToolhelp32Snapshot(2, 0), entry));
    EXPECT_EQ(entry.exeFile, "C:\\a.exe" + std::string(1, '\0') + std::string(251, 'x'));
    machine.SetFamily(Family::WindowsNt);
    ASSERT_TRUE(processes.Process32First(processes.CreateToolhelp32Snapshot(2, 0), entry));
    EXPECT_EQ(entry.exeFile.substr(0, 6), std::string("a.exe\0", 6));
}

TEST(MemoryMachine, ThePrivilegeIsOnOnlyWhenTheTokenHoldsIt) {
    MemoryMachine machine;
    Token& token = machine.Parts().token;
    const TokenHandle handle = token.OpenProcessToken(token.GetCurrentProcess(), 40);
    const Luid privilege = token.LookupPrivilegeValueA("", "SeDebugPrivilege").value_or(0);
    EXPECT_TRUE(token.AdjustTokenPrivileges(handle, privilege, 2));
    EXPECT_TRUE(machine.token.IsPrivilegeEnabled("SeDebugPrivilege"));
    EXPECT_TRUE(token.AdjustTokenPrivileges(handle, privilege, 0));
    EXPECT_FALSE(machine.token.IsPrivilegeEnabled("SeDebugPrivilege"));
    machine.token.SetHoldsDebugPrivilege(false);
    EXPECT_TRUE(token.AdjustTokenPrivileges(handle, privilege, 2));
    EXPECT_FALSE(machine.token.IsPrivilegeEnabled("SeDebugPrivilege"));
    EXPECT_EQ(machine.token.OpenTokenCount(), 1u);
}

TEST(MemoryMachine, ADiskFillsUp) {
    MemoryMachine machine;
    machine.disk.SetFreeBytes(3);
    FileSystem& files = machine.Parts().files;
    FileHandle file = 0;
    ASSERT_EQ(files.CreateFileA("C:\\a.txt", FileUse::Replace, file), error::Success);
    std::uint32_t written = 0;
    EXPECT_EQ(files.WriteFile(file, Bytes{'a', 'b', 'c', 'd'}, written), error::Success);
    EXPECT_EQ(written, 3u);
    EXPECT_EQ(files.WriteFile(file, Bytes{'d'}, written), error::HandleDiskFull);
    EXPECT_EQ(machine.disk.ContentOf("C:\\a.txt"), "abc");
}

TEST(MemoryMachine, TheClockKeepsItsDistanceToUtc) {
    MemoryMachine machine;
    machine.clock.SetUtcOffset(-90);
    const FileTime noon = ToFileTime(MakeTime(2003, 1, 1, 12));
    const auto local = machine.Parts().clock.FileTimeToLocalFileTime(noon);
    EXPECT_EQ(local, ToFileTime(MakeTime(2003, 1, 1, 10, 30)));
}

TEST(MemoryMachine, TheShellKeepsWhatItWasAsked) {
    MemoryMachine machine;
    machine.AddFile("C:\\report.txt");
    Shell& shell = machine.Parts().shell;
    EXPECT_GT(shell.ShellExecuteA(7, "Open", "C:\\report.txt", "", "", 1), 32u);
    EXPECT_GT(shell.ShellExecuteA(7, "Open", "http://example.com/", "", "", 1), 32u);
    EXPECT_EQ(shell.WinExec("C:\\gone.exe /u", 1), error::FileNotFound);
    EXPECT_EQ(machine.shell.Opened(),
              (std::vector<ShellOpening>{{7, "Open", "C:\\report.txt", "", "", 1},
                                         {7, "Open", "http://example.com/", "", "", 1}}));
    EXPECT_EQ(machine.shell.Launched(), (std::vector<Launch>{{"C:\\gone.exe /u", 1}}));
}

TEST(MemoryMachine, AFilesVersionIsReadLikeAnyResource) {
    MemoryMachine machine;
    machine.AddFile("C:\\a.exe").Version({{"CompanyName", "Example"}});
    VersionResources& versions = machine.Parts().versionResources;
    const std::uint32_t size = versions.GetFileVersionInfoSizeA("C:\\a.exe");
    const auto block = versions.GetFileVersionInfoA("C:\\a.exe", size);
    ASSERT_TRUE(block.has_value());
    EXPECT_EQ(versions.VerQueryValueA(*block, "\\StringFileInfo\\040904B0\\CompanyName"),
              (Bytes{'E', 'x', 'a', 'm', 'p', 'l', 'e', 0}));
}

}  // namespace velkarix
