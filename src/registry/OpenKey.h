// A key that is open for as long as this object lives, so that no way out of a routine leaves a
// handle behind. A path with a NUL in it leads nowhere: the system would end it there, and open
// another key.
#pragma once

#include <string>

#include "platform/Registry.h"
#include "registry/RawValue.h"

namespace velkarix {

class OpenKey {
  public:
    explicit OpenKey(Registry& registry) : registry_(registry) {}
    OpenKey(const OpenKey&) = delete;
    OpenKey& operator=(const OpenKey&) = delete;
    ~OpenKey() { Close(); }

    // Each gives the system's code; the key is open on Success.
    ErrorCode Create(KeyHandle parent, const std::string& subKey) {
        if (!IsReachable(subKey)) return error::InvalidData;
        return registry_.RegCreateKeyA(parent, subKey, handle_);
    }
    ErrorCode Open(KeyHandle parent, const std::string& subKey) {
        if (!IsReachable(subKey)) return error::InvalidData;
        return registry_.RegOpenKeyA(parent, subKey, handle_);
    }
    ErrorCode Open(KeyHandle parent, const std::string& subKey, KeyAccess access) {
        if (!IsReachable(subKey)) return error::InvalidData;
        return registry_.RegOpenKeyExA(parent, subKey, access, handle_);
    }
    // Closes at once. A key that isn't open is closed already.
    ErrorCode Close() {
        const KeyHandle open = handle_;
        handle_ = 0;
        return open == 0 ? error::Success : registry_.RegCloseKey(open);
    }

    KeyHandle Handle() const { return handle_; }

  private:
    Registry& registry_;
    KeyHandle handle_ = 0;
};

}  // namespace velkarix
