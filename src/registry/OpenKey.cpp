#include "registry/OpenKey.h"

#include <algorithm>

#include "base/Text.h"

namespace velkarix {

std::size_t CutOf(std::string_view path) {
    if (path.size() <= LongestPath) return std::string_view::npos;
    // Behind the last byte there is nothing, which would name the key above it.
    for (std::size_t at = std::min(LongestPath, path.size() - 2); at > 0; --at) {
        if (path[at] == '\\' && IsCharacter(path, at)) return at;
    }
    return std::string_view::npos;
}

}  // namespace velkarix
