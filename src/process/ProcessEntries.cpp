#include "process/ProcessEntries.h"

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <optional>
#include <string_view>

#include "base/Text.h"
#include "process/clsPrivilege.h"
#include "shell/FilePaths.h"

namespace velkarix {

namespace {

constexpr std::size_t PathLength = 260;  // of a path in the system's structures

constexpr std::uint32_t QueryAndRead = 1040;  // PROCESS_QUERY_INFORMATION, PROCESS_VM_READ
constexpr std::uint32_t IdSize = 4;

// The system doesn't say how many ids there are: a buffer that comes back full may have been too
// small, so it is doubled until one comes back with room left.
std::vector<ProcessId> EnumerateIds(Processes& processes) {
    constexpr std::uint32_t LargestBuffer = 1 << 24;  // far more than any system's processes
    std::uint32_t bufferSize = 8;
    std::uint32_t bytesUsed = 96;
    std::vector<ProcessId> ids;
    while (bufferSize <= bytesUsed && bufferSize < LargestBuffer) {
        bufferSize *= 2;
        ids.assign(bufferSize / IdSize, 0);
        if (!processes.EnumProcesses(ids, bytesUsed)) return {};
    }
    ids.resize(std::min<std::size_t>(ids.size(), bytesUsed / IdSize));
    return ids;
}

// The path of the program file of an open process; nothing when its modules can't be read.
std::optional<std::string> ProgramFile(Processes& processes, ProcessHandle process) {
    constexpr std::size_t MostModules = 50;      // only the first, the program file, is looked at
    constexpr std::uint32_t NameCapacity = 500;  // bytes

    std::vector<ModuleHandle> modules(MostModules);
    if (!processes.EnumProcessModules(process, modules)) return std::nullopt;
    const std::string name = processes.GetModuleFileNameExA(process, modules.front(), NameCapacity);
    return TrimAtNull(std::string_view(name).substr(0, PathLength));
}

ProcessEntries ListByModules(const Machine& machine) {
    clsPrivilege privilege(machine.system, machine.token);
    privilege.getPrivilege();  // without it fewer processes can be opened, which is no error
    ProcessEntries entries;
    for (const ProcessId id : EnumerateIds(machine.processes)) {
        const ProcessHandle process = machine.processes.OpenProcess(QueryAndRead, id);
        if (process != 0) {
            const std::optional<std::string> path = ProgramFile(machine.processes, process);
            if (path) entries.push_back({CleanPath(machine, *path), id});
        }
        machine.processes.CloseHandle(process);
    }
    return entries;
}

ProcessEntries ListBySnapshot(const Machine& machine) {
    constexpr std::uint32_t AllProcesses = 2;  // TH32CS_SNAPPROCESS

    Processes& processes = machine.processes;
    const SnapshotHandle snapshot = processes.CreateToolhelp32Snapshot(AllProcesses, 0);
    if (snapshot == 0) return {};
    ProcessEntries entries;
    ProcessSnapshotEntry entry;
    for (bool more = processes.Process32First(snapshot, entry); more;
         more = processes.Process32Next(snapshot, entry)) {
        // The field's last character is the NUL's place, even when the system filled it.
        const std::string_view name = std::string_view(entry.exeFile).substr(0, PathLength - 1);
        entries.push_back({CleanPath(machine, TrimAtNull(name)), entry.id});
    }
    processes.CloseHandle(snapshot);
    return entries;
}

}  // namespace

bool ListsBySnapshot(const std::string& windowsName) {
    const std::string_view marks[] = {"98", "95", "Millennium"};
    return std::any_of(std::begin(marks), std::end(marks), [&](std::string_view mark) {
        return windowsName.find(mark) != std::string::npos;
    });
}

ProcessEntries ListProcesses(const Machine& machine, const std::string& windowsName) {
    if (ListsBySnapshot(windowsName)) return ListBySnapshot(machine);
    return ListByModules(machine);
}

}  // namespace velkarix
