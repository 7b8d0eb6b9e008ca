// A key that is open for as long as this object lives, so that no way out of a routine leaves a
// handle behind. A path with a NUL in it leads nowhere: the system would end it there, and open
// another key.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "platform/Registry.h"
#include "registry/RawValue.h"

namespace velkarix {

// One call of the system takes no longer path, in bytes.
inline constexpr std::size_t LongestPath = 259;

// The path without backslashes that part nothing: the system takes several for one, and none at the
// end for a name.
std::string WithoutEmptyNames(std::string_view path);

// The backslash that parts a path which is too long for one call: the last within reach of a call
// that is no part of a double-byte character. npos for any other path, and where there is no such
// backslash.
std::size_t CutOf(std::string_view path);

class OpenKey {
  public:
    explicit OpenKey(Registry& registry) : registry_(registry) {}
    OpenKey(const OpenKey&) = delete;
    OpenKey& operator=(const OpenKey&) = delete;
    ~OpenKey() { Close(); }

    // Each gives the system's code; the key is open on Success.
    ErrorCode Create(KeyHandle parent, const std::string& subKey) {
        return Go(parent, subKey, true, [this](KeyHandle above, const std::string& rest) {
            return registry_.RegCreateKeyA(above, rest, handle_);
        });
    }
    ErrorCode Open(KeyHandle parent, const std::string& subKey) {
        return Go(parent, subKey, false, [this](KeyHandle above, const std::string& rest) {
            return registry_.RegOpenKeyA(above, rest, handle_);
        });
    }
    ErrorCode Open(KeyHandle parent, const std::string& subKey, KeyAccess access) {
        return Go(parent, subKey, false, [this, access](KeyHandle above, const std::string& rest) {
            return registry_.RegOpenKeyExA(above, rest, access, handle_);
        });
    }
    // Gives `call` the whole path; of one that is too long for a call the end, with the key that
    // its beginning leads to, which is made when it is missing and `make` says so.
    template <typename Call>
    ErrorCode Go(KeyHandle parent, const std::string& subKey, bool make, const Call& call) {
        if (!IsReachable(subKey)) return error::InvalidData;
        if (subKey.size() <= LongestPath) return call(parent, subKey);
        const std::string path = WithoutEmptyNames(subKey);
        const std::size_t cut = CutOf(path);
        if (cut == std::string::npos) return call(parent, path);
        OpenKey above(registry_);
        const std::string beginning = path.substr(0, cut);
        const ErrorCode opened =
            make ? above.Create(parent, beginning) : above.Open(parent, beginning);
        if (opened != error::Success) return opened;
        return above.Go(above.handle_, path.substr(cut + 1), make, call);
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
