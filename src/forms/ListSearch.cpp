#include "forms/ListSearch.h"

#include "base/Text.h"

namespace velkarix {

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

}  // namespace velkarix
