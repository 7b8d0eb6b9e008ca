#include "tests/machine/MemoryProcesses.h"

#include <algorithm>
#include <utility>

namespace velkarix {
namespace {

constexpr std::uint32_t readModulesAccess = 0x0400 | 0x0010;  // query information, read memory
constexpr std::uint32_t terminateAccess = 0x0001;
constexpr std::uint32_t queryAccess = 0x0400;
constexpr std::uint32_t stillActive = 259;
constexpr std::uint32_t snapshotOfProcesses = 2;
constexpr std::uintptr_t invalidSnapshot = UINTPTR_MAX;
constexpr ModuleHandle programModule = 0x00400000;
constexpr std::size_t exeFileField = 260;  // bytes of szExeFile

}  // namespace

MemoryProcess& MemoryProcess::NotOpenable() {
    openable = false;
    return *this;
}

MemoryProcess& MemoryProcess::ModulesUnreadable() {
    modulesReadable = false;
    return *this;
}

MemoryProcess& MemoryProcess::Protected() {
    isProtected = true;
    return *this;
}

MemoryProcess& MemoryProcess::EndsBeforeOpening() {
    endsBeforeOpening = true;
    return *this;
}

MemoryProcess& MemoryProcesses::Add(ProcessId id, const std::string& path) {
    if (!IsRunning(id)) {
        order_.push_back(id);
    }
    MemoryProcess process;
    process.id = id;
    process.path = path;
    return byId_[id] = process;
}

void MemoryProcesses::End(ProcessId id) {
    byId_.erase(id);
    std::erase(order_, id);
}

const MemoryProcess* MemoryProcesses::Find(ProcessId id) const {
    const auto found = byId_.find(id);
    return found == byId_.end() ? nullptr : &found->second;
}

bool MemoryProcesses::EnumProcesses(std::vector<ProcessId>& ids, std::uint32_t& bytesUsed) {
    if (journal_.Enter("EnumProcesses", std::to_string(ids.size())) || !hasPsapi_) {
        return false;
    }
    const std::size_t count = std::min(ids.size(), order_.size());
    std::copy_n(order_.begin(), count, ids.begin());
    bytesUsed = static_cast<std::uint32_t>(count * sizeof(ProcessId));
    return true;
}

ProcessHandle MemoryProcesses::OpenProcess(std::uint32_t access, ProcessId id) {
    const std::string arguments = std::to_string(access) + ", " + std::to_string(id);
    if (const ErrorCode failure = journal_.Enter("OpenProcess", arguments)) {
        lastError_ = failure;
        return 0;
    }
    const MemoryProcess* process = Find(id);
    if (process != nullptr && process->endsBeforeOpening) {
        End(id);
        process = nullptr;
    }
    if (process == nullptr || !process->openable) {
        lastError_ = process == nullptr ? error::InvalidParameter : error::AccessDenied;
        return 0;
    }
    nextHandle_ += 4;
    processHandles_[nextHandle_] = {id, access};
    return nextHandle_;
}

const MemoryProcess* MemoryProcesses::Readable(ProcessHandle handle) const {
    const auto open = processHandles_.find(handle);
    if (!hasPsapi_ || open == processHandles_.end() ||
        (open->second.access & readModulesAccess) != readModulesAccess) {
        return nullptr;
    }
    const MemoryProcess* process = Find(open->second.id);
    return process != nullptr && process->modulesReadable ? process : nullptr;
}

bool MemoryProcesses::EnumProcessModules(ProcessHandle process,
                                         std::vector<ModuleHandle>& modules) {
    const bool fails = journal_.Enter("EnumProcessModules") != error::Success;
    if (fails || Readable(process) == nullptr) {
        return false;
    }
    if (!modules.empty()) {
        modules.front() = programModule;
    }
    return true;
}

std::string MemoryProcesses::GetModuleFileNameExA(ProcessHandle process, ModuleHandle module,
                                                  std::uint32_t capacity) {
    const bool fails =
        journal_.Enter("GetModuleFileNameExA", std::to_string(capacity)) != error::Success;
    const MemoryProcess* found = Readable(process);
    // The program's own module is also meant by 0.
    if (fails || found == nullptr || capacity == 0 || (module != programModule && module != 0)) {
        return {};
    }
    return found->path.substr(0, capacity - 1);
}

bool MemoryProcesses::MayUse(ProcessHandle handle, std::uint32_t access) {
    const auto open = processHandles_.find(handle);
    if (open == processHandles_.end()) {
        lastError_ = error::InvalidHandle;
        return false;
    }
    const bool may = (open->second.access & access) == access;
    lastError_ = may ? lastError_ : error::AccessDenied;
    return may;
}

std::optional<std::uint32_t> MemoryProcesses::GetExitCodeProcess(ProcessHandle process) {
    if (const ErrorCode failure = journal_.Enter("GetExitCodeProcess")) {
        lastError_ = failure;
        return std::nullopt;
    }
    if (!MayUse(process, queryAccess)) {
        return std::nullopt;
    }
    return StoppedWith(processHandles_[process].id).value_or(stillActive);
}

bool MemoryProcesses::TerminateProcess(ProcessHandle process, std::uint32_t exitCode) {
    if (const ErrorCode failure = journal_.Enter("TerminateProcess", std::to_string(exitCode))) {
        lastError_ = failure;
        return false;
    }
    if (!MayUse(process, terminateAccess)) {
        return false;
    }
    const ProcessId id = processHandles_[process].id;
    const MemoryProcess* running = Find(id);
    if (running == nullptr || running->isProtected) {
        lastError_ = error::AccessDenied;
        return false;
    }
    stoppedWith_[id] = exitCode;
    End(id);
    return true;
}

std::optional<std::uint32_t> MemoryProcesses::StoppedWith(ProcessId id) const {
    const auto found = stoppedWith_.find(id);
    return found == stoppedWith_.end() ? std::nullopt : std::optional(found->second);
}

bool MemoryProcesses::CloseHandle(ProcessHandle handle) {
    const bool fails = journal_.Enter("CloseHandle") != error::Success;
    return !fails && (processHandles_.erase(handle) != 0 || snapshots_.erase(handle) != 0);
}

SnapshotHandle MemoryProcesses::CreateToolhelp32Snapshot(std::uint32_t flags, ProcessId id) {
    if (journal_.Enter("CreateToolhelp32Snapshot",
                       std::to_string(flags) + ", " + std::to_string(id))) {
        return hasToolhelp_ ? invalidSnapshot : 0;
    }
    if (!hasToolhelp_) {
        return 0;
    }
    Snapshot snapshot;
    if ((flags & snapshotOfProcesses) != 0) {
        for (const ProcessId running : order_) {
            const std::string& path = Find(running)->path;
            const std::size_t name = family_ == Family::WindowsNt ? path.find_last_of('\\') + 1 : 0;
            snapshot.entries.emplace_back(running, path.substr(name));
        }
    }
    nextHandle_ += 4;
    snapshots_[nextHandle_] = std::move(snapshot);
    return nextHandle_;
}

bool MemoryProcesses::NextEntry(SnapshotHandle snapshot, ProcessSnapshotEntry& entry,
                                bool fromStart) {
    const auto open = snapshots_.find(snapshot);
    if (open == snapshots_.end()) {
        return false;
    }
    Snapshot& list = open->second;
    list.next = fromStart ? 0 : list.next;
    if (list.next == list.entries.size()) {
        return false;
    }
    const auto& [id, file] = list.entries[list.next++];
    entry.id = id;
    // Only the text and its NUL are written; what the caller had behind it stays.
    const std::string text = file.substr(0, exeFileField - 1) + '\0';
    entry.exeFile.resize(exeFileField, '\0');
    entry.exeFile.replace(0, text.size(), text);
    return true;
}

bool MemoryProcesses::Process32First(SnapshotHandle snapshot, ProcessSnapshotEntry& entry) {
    return !journal_.Enter("Process32First") && NextEntry(snapshot, entry, true);
}

bool MemoryProcesses::Process32Next(SnapshotHandle snapshot, ProcessSnapshotEntry& entry) {
    return !journal_.Enter("Process32Next") && NextEntry(snapshot, entry, false);
}

}  // namespace velkarix
