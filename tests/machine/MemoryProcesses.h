// The running processes of the machine in memory, listed in the order that they were added.
#pragma once

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "platform/Processes.h"
#include "tests/machine/CallJournal.h"
#include "tests/machine/NamedSystem.h"

namespace velkarix {

struct MemoryProcess {
    // It belongs to another user: OpenProcess gives 0.
    MemoryProcess& NotOpenable();
    // It opens, but its modules can't be read, as with the system's own processes.
    MemoryProcess& ModulesUnreadable();
    // The system protects it: it opens, but can't be stopped.
    MemoryProcess& Protected();
    // It is in every listing, but is gone by the time that anybody opens it.
    MemoryProcess& EndsBeforeOpening();

    ProcessId id = 0;
    std::string path;  // of its program file, in the system's spelling
    bool openable = true;
    bool modulesReadable = true;
    bool endsBeforeOpening = false;
    bool isProtected = false;
};

class MemoryProcesses : public Processes {
  public:
    explicit MemoryProcesses(CallJournal& journal) : journal_(journal) {}

    // ---- Set-up and looking
    MemoryProcess& Add(ProcessId id, const std::string& path);
    void End(ProcessId id);
    // The code that a process was stopped with.
    std::optional<std::uint32_t> StoppedWith(ProcessId id) const;
    bool IsRunning(ProcessId id) const { return Find(id) != nullptr; }
    const std::vector<ProcessId>& Running() const { return order_; }
    // Which libraries the system has; both at first.
    void SetHasPsapi(bool there) { hasPsapi_ = there; }
    void SetHasToolhelp(bool there) { hasToolhelp_ = there; }
    // A snapshot tells a program's path on the 95 family and only its file name on the NT family.
    void SetFamily(Family family) { family_ = family; }
    // Handles of processes and snapshots that weren't closed.
    std::size_t OpenHandleCount() const { return processHandles_.size() + snapshots_.size(); }

    // ---- Processes
    bool EnumProcesses(std::vector<ProcessId>& ids, std::uint32_t& bytesUsed) override;
    bool EnumProcessModules(ProcessHandle process, std::vector<ModuleHandle>& modules) override;
    std::string GetModuleFileNameExA(ProcessHandle process, ModuleHandle module,
                                     std::uint32_t capacity) override;
    ProcessHandle OpenProcess(std::uint32_t access, ProcessId id) override;
    std::optional<std::uint32_t> GetExitCodeProcess(ProcessHandle process) override;
    bool TerminateProcess(ProcessHandle process, std::uint32_t exitCode) override;
    ErrorCode GetLastError() override { return lastError_; }
    bool CloseHandle(ProcessHandle handle) override;
    SnapshotHandle CreateToolhelp32Snapshot(std::uint32_t flags, ProcessId id) override;
    bool Process32First(SnapshotHandle snapshot, ProcessSnapshotEntry& entry) override;
    bool Process32Next(SnapshotHandle snapshot, ProcessSnapshotEntry& entry) override;

  private:
    struct OpenProcessHandle {
        ProcessId id = 0;
        std::uint32_t access = 0;
    };
    struct Snapshot {
        std::vector<std::pair<ProcessId, std::string>> entries;
        std::size_t next = 0;
    };

    const MemoryProcess* Find(ProcessId id) const;
    // Whether the handle was opened with these rights; else the last error says why not.
    bool MayUse(ProcessHandle handle, std::uint32_t access);
    // The process behind a handle whose modules may be read with it, or null.
    const MemoryProcess* Readable(ProcessHandle handle) const;
    bool NextEntry(SnapshotHandle snapshot, ProcessSnapshotEntry& entry, bool fromStart);

    CallJournal& journal_;
    Family family_ = Family::WindowsNt;
    bool hasPsapi_ = true;
    bool hasToolhelp_ = true;
    ErrorCode lastError_ = error::Success;
    std::map<ProcessId, MemoryProcess> byId_;
    std::vector<ProcessId> order_;
    std::map<ProcessHandle, OpenProcessHandle> processHandles_;
    std::map<ProcessId, std::uint32_t> stoppedWith_;
    std::map<SnapshotHandle, Snapshot> snapshots_;
    std::uintptr_t nextHandle_ = 0x400;
};

}  // namespace velkarix
