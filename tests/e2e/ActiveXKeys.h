// The keys where the browser looks up what it is to think of each ActiveX control. They are as
// before when a test ends, whatever it does to them.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "Install.h"
#include "RegistryTree.h"

namespace velkarix::e2e {

class ActiveXKeys {
  public:
    static constexpr const char* FlagsValue = "Compatibility Flags";

    ActiveXKeys() = default;
    ~ActiveXKeys();
    ActiveXKeys(const ActiveXKeys&) = delete;
    ActiveXKeys& operator=(const ActiveXKeys&) = delete;

    // The path of a control's key in HKEY_LOCAL_MACHINE.
    static std::string KeyOf(const std::string& name);
    // All of them, as they are now and as they were when the test began.
    static RegistryTree ReadKeys();
    // Puts them back as they were.
    void RestoreKeys() const;
    RegistryTree KeysBefore() const { return before_.value_or(RegistryTree()); }
    // As they were, and each of these with the flag that keeps the browser from loading it.
    RegistryTree WithFlags(const std::vector<std::string>& names) const;

    // The lines of the installation's list.
    static std::vector<std::string> ListedControls(const Install& install);

  private:
    const std::optional<RegistryTree> before_ = ReadTree(HKEY_LOCAL_MACHINE, AllKeys);
    static constexpr const char* AllKeys =
        "Software\\Microsoft\\Internet Explorer\\ActiveX Compatibility";
};

}  // namespace velkarix::e2e
