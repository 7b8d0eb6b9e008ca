// What each list of the browser page is to show on the sample machine.
#pragma once

#include <string>
#include <vector>

#include "BrowserItems.h"
#include "ListWindow.h"
#include "Marks.h"

namespace velkarix::e2e {

struct BrowserRow {
    RowTexts texts;
    Mark mark = Mark::None;
    std::string path = {};  // of the file; empty where the list shows none
};

const std::vector<std::string>& ColumnsOf(const BrowserList& list);

// In the order of the list. The protocols of the system itself aren't among them.
std::vector<BrowserRow> RowsOf(const BrowserList& list);

}  // namespace velkarix::e2e
