#include "Process.h"

#include <utility>

#include "Wait.h"

namespace velkarix::e2e {

Process::Process(const std::string& program, const std::string& folder,
                 const std::string& arguments) {
    std::string command = "\"" + program + "\"";
    if (!arguments.empty()) command += " " + arguments;
    STARTUPINFOA startup{};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION started{};
    if (!CreateProcessA(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr,
                        folder.empty() ? nullptr : folder.c_str(), &startup, &started)) {
        return;
    }
    CloseHandle(started.hThread);
    handle_ = started.hProcess;
    id_ = started.dwProcessId;
}

Process::~Process() {
    End();
}

Process::Process(Process&& other) noexcept {
    *this = std::move(other);
}

Process& Process::operator=(Process&& other) noexcept {
    if (this == &other) return *this;
    End();
    handle_ = std::exchange(other.handle_, nullptr);
    id_ = std::exchange(other.id_, 0);
    return *this;
}

void Process::End() {
    if (handle_ == nullptr) return;
    if (Running()) {
        TerminateProcess(handle_, 99);
        WaitForSingleObject(handle_, Patience);
    }
    CloseHandle(handle_);
    handle_ = nullptr;
}

bool Process::WaitIdle() const {
    return WaitForInputIdle(handle_, Patience) == 0;
}

std::optional<DWORD> Process::WaitForExit() const {
    DWORD code = 0;
    if (WaitForSingleObject(handle_, Patience) != WAIT_OBJECT_0) return std::nullopt;
    if (!GetExitCodeProcess(handle_, &code)) return std::nullopt;
    return code;
}

bool Process::Running() const {
    return handle_ != nullptr && WaitForSingleObject(handle_, 0) == WAIT_TIMEOUT;
}

}  // namespace velkarix::e2e
