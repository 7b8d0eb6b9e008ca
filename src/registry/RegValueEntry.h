// One value of a registry key, as a listing of the key gives it.
#pragma once

#include <cstdint>
#include <string>
#include <variant>

#include "base/Bytes.h"

namespace velkarix {

// What the data of an entry is.
enum class RegValueTag {
    None = 0,  // no usable data: the data is the empty text
    Integer = 3,
    Text = 8,
    ByteArray = 8209,
};

struct RegValueEntry {
    std::string name;
    // By the tag: std::int32_t for Integer, Bytes for ByteArray, else std::string.
    std::variant<std::string, std::int32_t, Bytes> data;
    RegValueTag tag = RegValueTag::None;

    friend bool operator==(const RegValueEntry&, const RegValueEntry&) = default;
};

}  // namespace velkarix
