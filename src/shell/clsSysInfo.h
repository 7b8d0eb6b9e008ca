// The six facts of the machine that windows branch on and reports show.
#pragma once

#include <string>

#include "platform/SystemFacts.h"
#include "registry/modRegistry.h"

namespace velkarix {

struct SystemDescription {
    std::string windowsName;   // empty for a system that isn't known
    std::string windowsBuild;  // major.minor.build
    std::string servicePack;   // all 128 bytes of the system's field, not cut at its NUL
    std::string computerName;
    std::string userName;         // with the NUL that the system counts in its length
    std::string explorerVersion;  // of Internet Explorer
};

class clsSysInfo {
  public:
    clsSysInfo(SystemFacts& system, modRegistry& registry) : system_(system), registry_(registry) {}
    // A fact that can't be had is empty.
    SystemDescription sysInfo();

  private:
    SystemFacts& system_;
    modRegistry& registry_;
};

}  // namespace velkarix
