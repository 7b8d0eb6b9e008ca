// A zone map of the current user that is the benchmark's own.
#pragma once

#include "OwnHive.h"

namespace velkarix {

class DomainMap {
  public:
    // Of this many live domains in zone 4, and no held one. Nine of ten hold the zone themselves,
    // the tenth in its subkey for "www" and the scheme "https".
    explicit DomainMap(int domains);

    // Has the process see this map and no other one. False when it can't.
    bool Use() const { return hive_.Use(); }

    static constexpr const char* Live =
        "Software\\Microsoft\\Windows\\CurrentVersion\\Internet Settings\\ZoneMap\\Domains";
    static constexpr const char* Held = "Software\\Velkarix\\Disabled\\Domains";

  private:
    OwnHive hive_;
};

}  // namespace velkarix
