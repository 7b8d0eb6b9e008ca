// What all lists of the pages share: the marks of rows, sorting, keys made of numbers, the web
// search.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "forms/ListView.h"
#include "platform/Shell.h"
#include "shell/Appearance.h"

namespace velkarix {

// The words of a list's column that tells whether an item is on.
constexpr const char* EnabledText(bool enabled) {
    return enabled ? "True" : "False";
}

// Marks and colours a new row by its state. A row that is enabled and not suspicious is left as it
// is, so a colour that it had stays.
void MarkRow(const Appearance& appearance, ListRow& row, bool enabled, bool suspicious);

// A click on a header: sorts by `column` (from 0) and turns the order round, whichever column the
// list was sorted by before.
void SortByColumn(ListView& list, int column);

// Sorting where a click on another header keeps the order, and only a second click on the same one
// turns it round.
class ColumnSort {
  public:
    // `column` counts from 0.
    void Click(ListView& list, int column);

  private:
    int lastColumn_ = 0;
};

// Fits all columns to their headers and contents.
void AutoSizeColumns(ListView& list);

// A number as text that isn't a bare number, as a row's key: the digits 0 to 9 become A to J.
std::string EncodeDigits(std::int32_t number);
// The reverse. Nothing when the text is no number of 32 bits.
std::optional<std::int32_t> DecodeDigits(const std::string& text);

// The address of a web search; `query` stands in it as it is, without any escaping. Plain http,
// since the browsers of the oldest systems can't speak any encryption that is still accepted.
std::string SearchAddress(const std::string& query);
// Searches the web for the selected row's text; without a selected row nothing happens.
void SearchWeb(Shell& shell, const ListView& list);

}  // namespace velkarix
