#include "shell/ListServices.h"

#include <charconv>

#include "shell/ShellOpen.h"

namespace velkarix {

void MarkRow(const Appearance& appearance, ListRow& row, bool enabled, bool suspicious) {
    if (suspicious) {
        row.SetMark(enabled ? ItemMark::Suspicious : ItemMark::SuspiciousDisabled);
        row.SetTextColor(enabled ? appearance.SusColor : appearance.SusDisColor);
        if (appearance.FontBold == 1) row.SetBold(true);
    } else if (!enabled) {
        row.SetMark(ItemMark::Disabled);
        row.SetTextColor(appearance.DisColor);
    }
}

void SortByColumn(ListView& list, int column) {
    const SortOrder order =
        list.Order() == SortOrder::Ascending ? SortOrder::Descending : SortOrder::Ascending;
    list.Sort(static_cast<std::size_t>(column), order);
}

void ColumnSort::Click(ListView& list, int column) {
    if (column == lastColumn_) return SortByColumn(list, column);
    lastColumn_ = column;
    list.Sort(static_cast<std::size_t>(column), list.Order());
}

void AutoSizeColumns(ListView& list) {
    list.FitColumns();
}

std::string EncodeDigits(std::int32_t number) {
    std::string text = std::to_string(number);
    for (char& c : text) {
        if (c != '-') c = static_cast<char>(c - '0' + 'A');
    }
    return text;
}

std::optional<std::int32_t> DecodeDigits(const std::string& text) {
    std::string digits = text;
    for (char& c : digits) {
        if (c >= 'A' && c <= 'J') c = static_cast<char>(c - 'A' + '0');
    }
    std::int32_t number = 0;
    const char* end = digits.data() + digits.size();
    const auto [stop, failure] = std::from_chars(digits.data(), end, number);
    if (failure != std::errc() || stop != end) return std::nullopt;
    return number;
}

std::string SearchAddress(const std::string& query) {
    return "http://www.google.com/search?q=" + query;
}

void SearchWeb(Shell& shell, const ListView& list) {
    if (const ListRow* row = list.SelectedRow()) ShellOpen(shell, SearchAddress(row->Text(0)));
}

}  // namespace velkarix
