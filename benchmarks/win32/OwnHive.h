// A key of the benchmark's own that the calling process sees in the place of a hive, so that pages
// find what the benchmark put there and nothing else. It goes with all that is in it.
#pragma once

#include <string>

#include "base/Bytes.h"
#include "platform/Registry.h"
#include "platform/win32/WindowsHeaders.h"

namespace velkarix {

class OwnHive {
  public:
    // `name` is the key's, below the one that all hives of the benchmarks are in. What an earlier
    // run left there is removed.
    OwnHive(Hive hive, const std::string& name);
    ~OwnHive();
    OwnHive(const OwnHive&) = delete;
    OwnHive& operator=(const OwnHive&) = delete;

    // Has the process see this key as the hive. False when it can't.
    bool Use() const;

    // The key itself, to be filled.
    HKEY Root() const { return root_; }

    // Opens a key, which is made when it is missing.
    static HKEY Create(HKEY parent, const std::string& name);
    static void SetText(HKEY key, const std::string& name, const std::string& text);
    static void SetBytes(HKEY key, const std::string& name, const Bytes& bytes);
    static void SetNumber(HKEY key, const std::string& name, DWORD number);

  private:
    HKEY hive_;
    std::string name_;
    HKEY root_ = nullptr;
};

}  // namespace velkarix
