#include "tests/machine/Wildcard.h"

#include "tests/machine/CaseFold.h"

namespace velkarix {
namespace {

bool Fits(std::string_view name, std::string_view pattern) {
    if (pattern.empty()) {
        return name.empty();
    }
    if (pattern[0] == '*') {
        return Fits(name, pattern.substr(1)) || (!name.empty() && Fits(name.substr(1), pattern));
    }
    if (name.empty() || (pattern[0] != '?' && pattern[0] != name[0])) {
        return false;
    }
    return Fits(name.substr(1), pattern.substr(1));
}

}  // namespace

bool FitsPattern(std::string_view name, std::string_view pattern) {
    return pattern == "*.*" || Fits(FoldCase(name), FoldCase(pattern));
}

}  // namespace velkarix
