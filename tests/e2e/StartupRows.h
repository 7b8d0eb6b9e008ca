// What the startup list is to show on the sample machine.
#pragma once

#include <string>
#include <vector>

#include "ListWindow.h"
#include "Marks.h"

namespace velkarix::e2e {

struct StartupRow {
    RowTexts texts;
    Mark mark = Mark::None;
    std::string path = {};  // of the file; empty where the list shows none
};

const std::vector<std::string>& StartupColumns();

// The rows of a node of the tree, in the order of the list.
std::vector<StartupRow> StartupRowsOf(const std::string& node);

}  // namespace velkarix::e2e
