// The security token of the program on the machine in memory.
#pragma once

#include <cstddef>
#include <map>
#include <set>
#include <string>

#include "platform/Token.h"
#include "tests/machine/CallJournal.h"
#include "tests/machine/NamedSystem.h"

namespace velkarix {

class MemoryToken : public Token {
  public:
    explicit MemoryToken(CallJournal& journal) : journal_(journal) {}

    // On the 95 family there are no tokens: every call but GetCurrentProcess fails.
    void SetFamily(Family family) { family_ = family; }
    // Whether SeDebugPrivilege is in the token, as it is for an administrator; it is at first.
    // Without it the switching succeeds but has no effect.
    void SetHoldsDebugPrivilege(bool holds) { holdsDebugPrivilege_ = holds; }

    bool IsPrivilegeEnabled(const std::string& name) const;
    std::size_t OpenTokenCount() const { return tokens_.size(); }

    // ---- Token
    ProcessHandle GetCurrentProcess() override;
    TokenHandle OpenProcessToken(ProcessHandle process, std::uint32_t access) override;
    std::optional<Luid> LookupPrivilegeValueA(const std::string& system,
                                              const std::string& name) override;
    bool AdjustTokenPrivileges(TokenHandle token, Luid privilege,
                               std::uint32_t attributes) override;
    bool CloseToken(TokenHandle token) override;

  private:
    CallJournal& journal_;
    Family family_ = Family::WindowsNt;
    bool holdsDebugPrivilege_ = true;
    std::set<Luid> enabled_;
    std::map<TokenHandle, std::uint32_t> tokens_;  // with the rights they were opened with
    TokenHandle nextToken_ = 0x800;
};

}  // namespace velkarix
