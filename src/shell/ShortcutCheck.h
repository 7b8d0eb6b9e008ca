// Whether a file may be handed to the system's objects for shortcuts: some of them trust the
// lengths in it, and take the program down with them where those lie.
#pragma once

#include <string_view>

namespace velkarix {

// True when the file begins like a shortcut and each of its parts, whose lengths and places it
// tells, lies within it and ends where it should. What the parts say isn't judged.
// Layout: Microsoft's document [MS-SHLLINK], section 2; all numbers are little-endian.
bool IsWholeShortcut(std::string_view file);

}  // namespace velkarix
