// Rows of a list as text that other programs take for a table: the columns parted by tabs, the rows
// by line breaks.
#pragma once

#include <string>

#include "forms/ListView.h"

namespace velkarix {

// One row, without a line break at its end. Characters of control within a column, which would
// part columns or rows, become blanks.
std::string RowAsText(const ListView& list, const ListRow& row);
// The captions of the columns and all rows in the shown order, each with a line break at its end.
std::string ListAsText(ListView& list);

}  // namespace velkarix
