// Colours.
#pragma once

#include <cstdint>

namespace velkarix {

// A colour as the system's number: the lowest byte is red, next green, next blue.
using Color = std::uint32_t;

}  // namespace velkarix
