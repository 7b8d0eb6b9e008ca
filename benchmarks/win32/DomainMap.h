// A zone map of the current user that is the benchmark's own: the calling process sees a key of the
// benchmark in the place of HKEY_CURRENT_USER. It goes with all that is in it.
#pragma once

#include <string>

namespace velkarix {

class DomainMap {
  public:
    // Of this many live domains in zone 4, and no held one. Nine of ten hold the zone themselves,
    // the tenth in its subkey for "www" and the scheme "https".
    explicit DomainMap(int domains);
    ~DomainMap();
    DomainMap(const DomainMap&) = delete;
    DomainMap& operator=(const DomainMap&) = delete;

    // Has the process see this map and no other one. False when it can't.
    bool Use() const;

    static constexpr const char* Live =
        "Software\\Microsoft\\Windows\\CurrentVersion\\Internet Settings\\ZoneMap\\Domains";
    static constexpr const char* Held = "Software\\Velkarix\\Disabled\\Domains";

  private:
    std::string key_;
};

}  // namespace velkarix
