// Text patterns with wild cards.
#pragma once

#include <string_view>

namespace velkarix {

// Whether the whole text fits the pattern, in which "*" is any run of characters and "?" any one.
bool MatchesPattern(std::string_view text, std::string_view pattern);

}  // namespace velkarix
