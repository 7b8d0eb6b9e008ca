// Raw data as it comes from the registry, from files and from resources.
#pragma once

#include <cstdint>
#include <vector>

namespace velkarix {

using Bytes = std::vector<std::uint8_t>;

}  // namespace velkarix
