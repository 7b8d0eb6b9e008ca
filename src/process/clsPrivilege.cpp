#include "process/clsPrivilege.h"

#include <cstdint>
#include <optional>

namespace velkarix {

namespace {

constexpr std::uint32_t AdjustAndQuery = 40;  // TOKEN_ADJUST_PRIVILEGES, TOKEN_QUERY
constexpr std::uint32_t Enabled = 2;          // SE_PRIVILEGE_ENABLED
constexpr std::uint32_t Family95 = 0x80000000;

}  // namespace

clsPrivilege::~clsPrivilege() {
    if (enabled_) token_.AdjustTokenPrivileges(handle_, privilege_, 0);
    CloseToken();
}

bool clsPrivilege::getPrivilege() {
    if ((system_.GetVersion() & Family95) != 0) return false;
    handle_ = token_.OpenProcessToken(token_.GetCurrentProcess(), AdjustAndQuery);
    if (handle_ == 0) return false;
    const std::optional<Luid> privilege = token_.LookupPrivilegeValueA("", "SeDebugPrivilege");
    if (privilege) {
        privilege_ = *privilege;
        enabled_ = token_.AdjustTokenPrivileges(handle_, privilege_, Enabled);
    }
    if (!enabled_) CloseToken();
    return enabled_;
}

void clsPrivilege::CloseToken() {
    if (handle_ != 0) token_.CloseToken(handle_);
    handle_ = 0;
}

}  // namespace velkarix
