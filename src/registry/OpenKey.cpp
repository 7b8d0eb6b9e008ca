#include "registry/OpenKey.h"

#include "base/Text.h"

namespace velkarix {

std::string WithoutEmptyNames(std::string_view path) {
    std::string names;
    for (std::size_t i = 0; i < path.size(); ++i) {
        const bool partsNothing = i + 1 == path.size() || path[i + 1] == '\\';
        if (path[i] != '\\' || !IsCharacter(path, i) || !partsNothing) names.push_back(path[i]);
    }
    return names;
}

std::size_t CutOf(std::string_view path) {
    if (path.size() <= LongestPath) return std::string_view::npos;
    for (std::size_t at = LongestPath; at > 0; --at) {
        if (path[at] == '\\' && IsCharacter(path, at)) return at;
    }
    return std::string_view::npos;
}

}  // namespace velkarix
