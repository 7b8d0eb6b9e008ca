#include "tests/machine/MemoryToken.h"

#include "tests/machine/CaseFold.h"

namespace velkarix {
namespace {

constexpr ProcessHandle currentProcess = UINTPTR_MAX;
constexpr Luid debugPrivilege = 20;
constexpr const char* debugPrivilegeName = "SeDebugPrivilege";
constexpr std::uint32_t adjustAccess = 0x20;
constexpr std::uint32_t enabledAttribute = 2;

}  // namespace

bool MemoryToken::IsPrivilegeEnabled(const std::string& name) const {
    return SameName(name, debugPrivilegeName) && enabled_.contains(debugPrivilege);
}

ProcessHandle MemoryToken::GetCurrentProcess() {
    journal_.Enter("GetCurrentProcess");
    return currentProcess;
}

TokenHandle MemoryToken::OpenProcessToken(ProcessHandle process, std::uint32_t access) {
    if (journal_.Enter("OpenProcessToken", std::to_string(access)) ||
        family_ == Family::Windows95 || process != currentProcess) {
        return 0;
    }
    nextToken_ += 4;
    tokens_[nextToken_] = access;
    return nextToken_;
}

std::optional<Luid> MemoryToken::LookupPrivilegeValueA(const std::string& system,
                                                       const std::string& name) {
    const bool fails =
        journal_.Enter("LookupPrivilegeValueA", system + ", " + name) != error::Success;
    if (fails || family_ == Family::Windows95 || !SameName(name, debugPrivilegeName)) {
        return std::nullopt;
    }
    return debugPrivilege;
}

bool MemoryToken::AdjustTokenPrivileges(TokenHandle token, Luid privilege,
                                        std::uint32_t attributes) {
    const bool fails =
        journal_.Enter("AdjustTokenPrivileges", std::to_string(privilege) + ", " +
                                                    std::to_string(attributes)) != error::Success;
    const auto open = tokens_.find(token);
    if (fails || open == tokens_.end() || (open->second & adjustAccess) == 0) {
        return false;
    }
    if (privilege == debugPrivilege && holdsDebugPrivilege_) {
        if ((attributes & enabledAttribute) != 0) {
            enabled_.insert(privilege);
        } else {
            enabled_.erase(privilege);
        }
    }
    return true;
}

bool MemoryToken::CloseToken(TokenHandle token) {
    return !journal_.Enter("CloseToken") && tokens_.erase(token) != 0;
}

}  // namespace velkarix
