#include "base/Pattern.h"

namespace velkarix {

bool MatchesPattern(std::string_view text, std::string_view pattern) {
    // Only the latest star is ever widened, so the time is at most text times pattern.
    std::size_t at = 0;
    std::size_t inPattern = 0;
    std::size_t star = std::string_view::npos;
    std::size_t starAt = 0;
    while (at < text.size()) {
        if (inPattern < pattern.size() && pattern[inPattern] == '*') {
            star = inPattern++;
            starAt = at;
        } else if (inPattern < pattern.size() &&
                   (pattern[inPattern] == '?' || pattern[inPattern] == text[at])) {
            ++inPattern;
            ++at;
        } else if (star != std::string_view::npos) {
            inPattern = star + 1;
            at = ++starAt;
        } else {
            return false;
        }
    }
    while (inPattern < pattern.size() && pattern[inPattern] == '*') ++inPattern;
    return inPattern == pattern.size();
}

}  // namespace velkarix
