// Finding rows of a list: by what the user types into it, and by a text in any column.
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

enum class SearchWay { Down, Up };

struct FoundRow {
    std::size_t position;
    bool aroundTheEnd;  // reached by going on at the other end of the list
};

// The next row below the selected one, or above it, that has `text` in any of its columns, A to Z
// without regard to case; in the shown order and round the end, the selected row itself last. Where
// no row is selected the search begins at the end of the list that it goes away from. Nothing when
// there is no such row, or when `text` is empty.
std::optional<FoundRow> FindRowHolding(ListView& list, std::string_view text, SearchWay way);

}  // namespace velkarix
