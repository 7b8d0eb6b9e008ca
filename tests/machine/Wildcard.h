// How the system compares file names with the patterns of a directory search.
#pragma once

#include <string_view>

namespace velkarix {

// `*` stands for any run of characters, `?` for one; "*.*" fits every name. Without case.
bool FitsPattern(std::string_view name, std::string_view pattern);

}  // namespace velkarix
