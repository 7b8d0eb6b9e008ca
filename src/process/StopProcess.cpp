#include "process/StopProcess.h"

#include <cstdint>
#include <optional>
#include <string>

#include "process/clsPrivilege.h"

namespace velkarix {

namespace {

constexpr std::uint32_t TerminateAndQuery = 1025;  // PROCESS_TERMINATE, PROCESS_QUERY_INFORMATION
constexpr std::uint32_t Query = 1024;              // PROCESS_QUERY_INFORMATION
constexpr std::uint32_t StillActive = 259;
constexpr std::uint32_t TimeToClear = 1000;  // milliseconds

// Gives what failed, in the words of its message, or null.
const char* Stop(Processes& processes, ProcessHandle process) {
    const std::optional<std::uint32_t> code = processes.GetExitCodeProcess(process);
    if (!code) return "Error occurred while Exit code process: ";
    if (!processes.TerminateProcess(process, *code)) {
        return "Error occurred while terminating process: ";
    }
    return nullptr;
}

}  // namespace

bool ProcessRuns(const Machine& machine, ProcessId id) {
    const ProcessHandle process = machine.processes.OpenProcess(Query, id);
    if (process == 0) return false;
    const bool runs = machine.processes.GetExitCodeProcess(process) == StillActive;
    machine.processes.CloseHandle(process);
    return runs;
}

bool StopProcess(Application& application, ProcessId id) {
    const Machine& machine = application.machine;
    clsPrivilege privilege(machine.system, machine.token);
    privilege.getPrivilege();  // without it other users' processes can't be stopped; the rest can
    const char* failure = "Error occurred while opening process: ";
    ErrorCode code = error::Success;
    const ProcessHandle process = machine.processes.OpenProcess(TerminateAndQuery, id);
    if (process != 0) failure = Stop(machine.processes, process);
    if (failure != nullptr) code = machine.processes.GetLastError();
    machine.processes.CloseHandle(process);
    if (failure != nullptr) {
        application.Tell(MessageIcon::Critical,
                         failure + application.registry.GetSystemErrorText(code));
        return false;
    }
    machine.clock.Sleep(TimeToClear);
    return true;
}

}  // namespace velkarix
