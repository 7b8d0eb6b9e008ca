// How the system compares names of keys, values, files, sections, variables: without case, by the
// Western ANSI code page.
#pragma once

#include <string>
#include <string_view>

namespace velkarix {

// `text` in capitals; two names are the same to the system when their folded forms are equal.
std::string FoldCase(std::string_view text);

bool SameName(std::string_view left, std::string_view right);

}  // namespace velkarix
