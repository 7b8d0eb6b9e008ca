// A whole machine in memory, for tests: a registry, a disk, processes, windows and the rest, which
// answer by the system's rules and keep their state. A test says what is on it, lets the program
// work on Parts(), and looks at what is there afterwards and at the journal of the calls.
//
//   MemoryMachine machine;
//   machine.AddFile("C:\\WINDOWS\\bad.dll").Content("MZ").Version({{"CompanyName", "Bad Ltd"}});
//   machine.SetValue(Hive::LocalMachine, "SOFTWARE\\Example", "Path", "C:\\WINDOWS\\bad.dll");
//   machine.FailNext("RegSetValueExA", error::AccessDenied);
//   ... the code under test, with machine.Parts() ...
//   EXPECT_TRUE(machine.disk.Exists("C:\\WINDOWS\\bad.dll"));
//   EXPECT_EQ(machine.registry.OpenKeyCount(), 0u);
//   EXPECT_EQ(machine.Journal().CountOf("RegSetValueExA"), 1u);
#pragma once

#include <string>

#include "platform/Machine.h"
#include "tests/machine/CallJournal.h"
#include "tests/machine/MemoryClock.h"
#include "tests/machine/MemoryDisk.h"
#include "tests/machine/MemoryFileSystem.h"
#include "tests/machine/MemoryProcesses.h"
#include "tests/machine/MemoryProfileFiles.h"
#include "tests/machine/MemoryRegistry.h"
#include "tests/machine/MemoryShell.h"
#include "tests/machine/MemoryShortcuts.h"
#include "tests/machine/MemorySystemFacts.h"
#include "tests/machine/MemoryToken.h"
#include "tests/machine/MemoryVersionResources.h"
#include "tests/machine/MemoryWindowSystem.h"
#include "tests/machine/NamedSystem.h"
#include "tests/machine/OpenSslCryptography.h"

namespace velkarix {

class MemoryMachine {
  private:
    CallJournal journal_;  // before the parts, which write into it

  public:
    explicit MemoryMachine(NamedSystem named = NamedSystem::WindowsXp);
    MemoryMachine(const MemoryMachine&) = delete;
    MemoryMachine& operator=(const MemoryMachine&) = delete;

    // What the code under test gets.
    Machine Parts();

    // The calls of all parts, in order. Set-up isn't in it.
    CallJournal& Journal() { return journal_; }
    void FailNext(const std::string& call, ErrorCode error = error::AccessDenied);
    void FailAlways(const std::string& call, ErrorCode error = error::AccessDenied);

    // Makes the machine answer as one of the nine systems: version, rules of the registry, which
    // libraries there are (PSAPI on the NT family, Toolhelp everywhere but on NT 3.51 and 4.0),
    // tokens, readers of shortcuts. Files and registry stay.
    void SetSystem(NamedSystem named);
    // The same with Windows 98 or Windows XP for the family.
    void SetFamily(Family family);

    // Short forms of the parts' own set-up.
    MemoryEntry& AddFile(const std::string& path) { return disk.AddFile(path); }
    MemoryEntry& AddFolder(const std::string& path) { return disk.AddFolder(path); }
    MemoryProcess& AddProcess(ProcessId id, const std::string& path);
    void AddKey(Hive hive, const std::string& key);
    void SetValue(Hive hive, const std::string& key, const std::string& name,
                  const std::string& text);
    void SetDword(Hive hive, const std::string& key, const std::string& name, std::uint32_t value);

    MemoryDisk disk;
    MemoryRegistry registry{journal_};
    MemoryProfileFiles profileFiles{journal_, disk};
    MemoryVersionResources versionResources{journal_, disk};
    MemoryFileSystem files{journal_, disk};
    MemoryClock clock{journal_};
    MemoryProcesses processes{journal_};
    MemoryToken token{journal_};
    MemoryShell shell{journal_, disk};
    MemoryShortcuts shortcuts{journal_, disk};
    MemorySystemFacts system{journal_};
    MemoryWindowSystem windows{journal_};
    OpenSslCryptography cryptography{journal_};
};

}  // namespace velkarix
