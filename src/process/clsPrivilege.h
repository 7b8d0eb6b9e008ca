// Holds the privilege to look into and stop processes of other users, for its own life.
#pragma once

#include "platform/SystemFacts.h"
#include "platform/Token.h"

namespace velkarix {

class clsPrivilege {
  public:
    clsPrivilege(SystemFacts& system, Token& token) : system_(system), token_(token) {}
    // Switches the privilege off again.
    ~clsPrivilege();
    clsPrivilege(const clsPrivilege&) = delete;
    clsPrivilege& operator=(const clsPrivilege&) = delete;

    // Switches SeDebugPrivilege on for this process. False where that can't be had, as always on
    // the 95 family; the work then goes on without it.
    bool getPrivilege();

  private:
    void CloseToken();

    SystemFacts& system_;
    Token& token_;
    TokenHandle handle_ = 0;
    Luid privilege_ = 0;
    bool enabled_ = false;
};

}  // namespace velkarix
