#include "forms/ListSearch.h"

#include "base/Text.h"

namespace velkarix {

namespace {

bool RowHolds(const ListRow& row, std::size_t columns, std::string_view text) {
    for (std::size_t column = 0; column < columns; ++column) {
        if (HoldsIgnoringCase(row.Text(column), text)) return true;
    }
    return false;
}

}  // namespace

std::optional<std::size_t> FindRowByPrefix(ListView& list, std::size_t start,
                                           std::string_view prefix) {
    const std::size_t count = list.RowCount();
    if (prefix.empty()) return std::nullopt;
    for (std::size_t i = 0; i < count; ++i) {
        const std::size_t position = (start + i) % count;
        const std::string_view text = list.Row(position).Text(0);
        if (EqualIgnoringCase(text.substr(0, prefix.size()), prefix)) return position;
    }
    return std::nullopt;
}

std::optional<FoundRow> FindRowHolding(ListView& list, std::string_view text, SearchWay way) {
    const std::size_t count = list.RowCount();
    if (text.empty() || count == 0) return std::nullopt;
    const bool down = way == SearchWay::Down;
    const ListRow* selected = list.SelectedRow();
    // Without a selected row it is as if one stood beyond the end.
    const std::size_t from = selected != nullptr ? list.PositionOf(*selected)
                             : down              ? count - 1
                                                 : 0;
    for (std::size_t i = 1; i <= count; ++i) {
        const std::size_t position = (from + (down ? i : count - i)) % count;
        if (!RowHolds(list.Row(position), list.Columns().size(), text)) continue;
        const bool around = down ? position <= from : position >= from;
        return FoundRow{position, selected != nullptr && around};
    }
    return std::nullopt;
}

}  // namespace velkarix
