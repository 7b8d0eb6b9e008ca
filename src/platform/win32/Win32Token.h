// This process's own security token. The 95 family has only stubs of these calls, so they are
// looked up and not imported.
#pragma once

#include "platform/Token.h"
#include "platform/win32/SystemLibrary.h"

namespace velkarix {

class Win32Token : public Token {
  public:
    ProcessHandle GetCurrentProcess() override;
    TokenHandle OpenProcessToken(ProcessHandle process, std::uint32_t access) override;
    std::optional<Luid> LookupPrivilegeValueA(const std::string& system,
                                              const std::string& name) override;
    bool AdjustTokenPrivileges(TokenHandle token, Luid privilege,
                               std::uint32_t attributes) override;
    bool CloseToken(TokenHandle token) override;

  private:
    SystemLibrary advapi_{"advapi32.dll"};
};

}  // namespace velkarix
