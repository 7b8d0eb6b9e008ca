// The process's own security token. On the 95 family these calls fail, which is no error.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "platform/Processes.h"

namespace velkarix {

using TokenHandle = std::uintptr_t;  // 0 is none
using Luid = std::uint64_t;          // a locally unique id, its high part above

class Token {
  public:
    virtual ~Token() = default;

    virtual ProcessHandle GetCurrentProcess() = 0;
    // 0 on failure.
    virtual TokenHandle OpenProcessToken(ProcessHandle process, std::uint32_t access) = 0;
    virtual std::optional<Luid> LookupPrivilegeValueA(const std::string& system,
                                                      const std::string& name) = 0;
    // Sets one privilege's attributes (2 is enabled, 0 is off). Like the system's call it is true
    // also when the token doesn't hold the privilege.
    virtual bool AdjustTokenPrivileges(TokenHandle token, Luid privilege,
                                       std::uint32_t attributes) = 0;
    virtual bool CloseToken(TokenHandle token) = 0;  // CloseHandle
};

}  // namespace velkarix
