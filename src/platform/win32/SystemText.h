// Text in the system's buffers.
#pragma once

#include <algorithm>
#include <cstddef>
#include <string>

namespace velkarix {

// The text in a buffer up to its NUL, or all `size` bytes when it has none.
inline std::string TextOf(const char* buffer, std::size_t size) {
    return std::string(buffer, std::find(buffer, buffer + size, '\0'));
}

}  // namespace velkarix
