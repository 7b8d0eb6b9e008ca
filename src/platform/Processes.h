// Running processes: both of the system's ways of listing them.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "platform/Errors.h"

namespace velkarix {

using ProcessId = std::uint32_t;
// Opaque handles; 0 is none.
using ProcessHandle = std::uintptr_t;
using ModuleHandle = std::uintptr_t;
using SnapshotHandle = std::uintptr_t;

// What a snapshot tells of one process (of PROCESSENTRY32).
struct ProcessSnapshotEntry {
    ProcessId id = 0;     // th32ProcessID
    std::string exeFile;  // all 260 bytes of szExeFile, with the NUL and what stands behind it
};

class Processes {
  public:
    virtual ~Processes() = default;

    // The module way (PSAPI; the NT family). All give false where the library isn't there.
    // `ids` is the buffer: its size is how many ids the system may fill in. `bytesUsed` is what
    // it filled, 4 bytes an id; a full buffer may mean that there are more.
    virtual bool EnumProcesses(std::vector<ProcessId>& ids, std::uint32_t& bytesUsed) = 0;
    // `modules` is the buffer; the first module is the program file.
    virtual bool EnumProcessModules(ProcessHandle process, std::vector<ModuleHandle>& modules) = 0;
    // The path of a module's file, at most `capacity` bytes with its NUL; empty on failure.
    virtual std::string GetModuleFileNameExA(ProcessHandle process, ModuleHandle module,
                                             std::uint32_t capacity) = 0;

    // 0 when the process is gone or can't be opened with this access mask.
    virtual ProcessHandle OpenProcess(std::uint32_t access, ProcessId id) = 0;
    // Nothing on failure. 259 is the code of a process that still runs.
    virtual std::optional<std::uint32_t> GetExitCodeProcess(ProcessHandle process) = 0;
    // Stops the process, which ends with this code.
    virtual bool TerminateProcess(ProcessHandle process, std::uint32_t exitCode) = 0;
    // Why the last of the three calls above failed.
    virtual ErrorCode GetLastError() = 0;
    // Closing 0 does nothing and gives false.
    virtual bool CloseHandle(ProcessHandle handle) = 0;

    // The snapshot way (Toolhelp; the 95 family). 0 where the library isn't there.
    virtual SnapshotHandle CreateToolhelp32Snapshot(std::uint32_t flags, ProcessId id) = 0;
    virtual bool Process32First(SnapshotHandle snapshot, ProcessSnapshotEntry& entry) = 0;
    virtual bool Process32Next(SnapshotHandle snapshot, ProcessSnapshotEntry& entry) = 0;
};

}  // namespace velkarix
