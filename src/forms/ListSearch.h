// The search that follows what the user types into a list.
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

#include "forms/ListView.h"

namespace velkarix {

// The position of the first row from `start` on, in the shown order and round the end, whose text
// begins with `prefix`, A to Z without regard to case. Nothing when there is none, or when
// `prefix` is empty.
std::optional<std::size_t> FindRowByPrefix(ListView& list, std::size_t start,
                                           std::string_view prefix);

}  // namespace velkarix
