#include "tests/machine/Wildcard.h"

#include <cstddef>

#include "tests/machine/CaseFold.h"

namespace velkarix {
namespace {

// Where a name doesn't go on as the pattern does, the last asterisk takes one letter more: what the
// ones before it took makes no difference.
bool Fits(std::string_view name, std::string_view pattern) {
    std::size_t at = 0;
    std::size_t next = 0;
    std::size_t afterAsterisk = std::string_view::npos;
    std::size_t taken = 0;  // by the asterisk, up to here
    while (at < name.size()) {
        if (next < pattern.size() && pattern[next] == '*') {
            afterAsterisk = ++next;
            taken = at;
        } else if (next < pattern.size() && (pattern[next] == '?' || pattern[next] == name[at])) {
            ++next;
            ++at;
        } else if (afterAsterisk != std::string_view::npos) {
            next = afterAsterisk;
            at = ++taken;
        } else {
            return false;
        }
    }
    return pattern.find_first_not_of('*', next) == std::string_view::npos;
}

}  // namespace

bool FitsPattern(std::string_view name, std::string_view pattern) {
    return pattern == "*.*" || Fits(FoldCase(name), FoldCase(pattern));
}

}  // namespace velkarix
