// Running processes. Neither way of listing them is on every Windows, so both are looked up.
#pragma once

#include "platform/Processes.h"
#include "platform/win32/SystemLibrary.h"

namespace velkarix {

class Win32Processes : public Processes {
  public:
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
    bool Step(const char* call, SnapshotHandle snapshot, ProcessSnapshotEntry& entry);

    ErrorCode lastError_ = error::Success;
    SystemLibrary psapi_{"psapi.dll"};
    SystemLibrary kernel_{"kernel32.dll"};
};

}  // namespace velkarix
