// The record that the system's own list of programs keeps of each program.
#pragma once

#include <cstdint>
#include <string_view>

#include "base/Bytes.h"

namespace velkarix {

// One that names a file; a path of 262 characters or more has no room for its NUL and is cut.
inline Bytes CacheRecord(std::u16string_view path) {
    Bytes record(552, 0);
    record[0] = 0x28;  // the length, 552
    record[1] = 0x02;
    record[4] = 1;
    for (std::size_t i = 0; i < path.size() && 28 + 2 * i + 1 < record.size(); ++i) {
        record[28 + 2 * i] = static_cast<std::uint8_t>(path[i]);
        record[28 + 2 * i + 1] = static_cast<std::uint8_t>(path[i] >> 8);
    }
    return record;
}

}  // namespace velkarix
