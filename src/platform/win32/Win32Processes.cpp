#include "platform/win32/Win32Processes.h"

#include <algorithm>

#include "platform/win32/SystemText.h"
#include "platform/win32/WindowsHeaders.h"

// The header of the snapshots needs the system's before it.
#include <tlhelp32.h>

namespace velkarix {
namespace {

HANDLE HandleOf(std::uintptr_t number) {
    return reinterpret_cast<HANDLE>(number);
}

}  // namespace

bool Win32Processes::EnumProcesses(std::vector<ProcessId>& ids, std::uint32_t& bytesUsed) {
    using Call = BOOL(WINAPI*)(DWORD*, DWORD, DWORD*);
    const auto call = psapi_.Find<Call>("EnumProcesses");
    if (call == nullptr) return false;
    std::vector<DWORD> buffer(ids.size());
    DWORD used = 0;
    const auto size = static_cast<DWORD>(buffer.size() * sizeof(DWORD));
    if (!call(buffer.data(), size, &used)) return false;
    std::copy(buffer.begin(), buffer.end(), ids.begin());
    bytesUsed = used;
    return true;
}

bool Win32Processes::EnumProcessModules(ProcessHandle process, std::vector<ModuleHandle>& modules) {
    using Call = BOOL(WINAPI*)(HANDLE, HMODULE*, DWORD, DWORD*);
    const auto call = psapi_.Find<Call>("EnumProcessModules");
    if (call == nullptr) return false;
    std::vector<HMODULE> buffer(modules.size());
    DWORD needed = 0;
    const auto size = static_cast<DWORD>(buffer.size() * sizeof(HMODULE));
    if (!call(HandleOf(process), buffer.data(), size, &needed)) return false;
    std::transform(buffer.begin(), buffer.end(), modules.begin(),
                   [](HMODULE module) { return reinterpret_cast<ModuleHandle>(module); });
    return true;
}

std::string Win32Processes::GetModuleFileNameExA(ProcessHandle process, ModuleHandle module,
                                                 std::uint32_t capacity) {
    using Call = DWORD(WINAPI*)(HANDLE, HMODULE, LPSTR, DWORD);
    const auto call = psapi_.Find<Call>("GetModuleFileNameExA");
    if (call == nullptr || capacity == 0) return {};
    std::string buffer(capacity, '\0');
    const DWORD length =
        call(HandleOf(process), reinterpret_cast<HMODULE>(module), buffer.data(), capacity);
    // A path that had to be cut may be told as long as the buffer, or without its NUL.
    return TextOf(buffer.data(), std::min(length, DWORD{capacity - 1}));
}

ProcessHandle Win32Processes::OpenProcess(std::uint32_t access, ProcessId id) {
    const HANDLE process = ::OpenProcess(access, FALSE, id);
    if (process == nullptr) lastError_ = ::GetLastError();
    return reinterpret_cast<ProcessHandle>(process);
}

std::optional<std::uint32_t> Win32Processes::GetExitCodeProcess(ProcessHandle process) {
    DWORD code = 0;
    if (!::GetExitCodeProcess(HandleOf(process), &code)) {
        lastError_ = ::GetLastError();
        return std::nullopt;
    }
    return code;
}

bool Win32Processes::TerminateProcess(ProcessHandle process, std::uint32_t exitCode) {
    const BOOL stopped = ::TerminateProcess(HandleOf(process), exitCode);
    if (!stopped) lastError_ = ::GetLastError();
    return stopped != FALSE;
}

bool Win32Processes::CloseHandle(ProcessHandle handle) {
    return handle != 0 && ::CloseHandle(HandleOf(handle)) != FALSE;
}

SnapshotHandle Win32Processes::CreateToolhelp32Snapshot(std::uint32_t flags, ProcessId id) {
    using Call = HANDLE(WINAPI*)(DWORD, DWORD);
    const auto call = kernel_.Find<Call>("CreateToolhelp32Snapshot");
    return call == nullptr ? 0 : reinterpret_cast<SnapshotHandle>(call(flags, id));
}

bool Win32Processes::Process32First(SnapshotHandle snapshot, ProcessSnapshotEntry& entry) {
    return Step("Process32First", snapshot, entry);
}

bool Win32Processes::Process32Next(SnapshotHandle snapshot, ProcessSnapshotEntry& entry) {
    return Step("Process32Next", snapshot, entry);
}

bool Win32Processes::Step(const char* call, SnapshotHandle snapshot, ProcessSnapshotEntry& entry) {
    using Call = BOOL(WINAPI*)(HANDLE, PROCESSENTRY32*);
    const auto step = kernel_.Find<Call>(call);
    PROCESSENTRY32 data{};
    data.dwSize = sizeof(data);
    if (step == nullptr || !step(HandleOf(snapshot), &data)) return false;
    entry.id = data.th32ProcessID;
    entry.exeFile.assign(data.szExeFile, sizeof(data.szExeFile));
    return true;
}

}  // namespace velkarix
