// What the report of the process page says of a row.
#pragma once

#include <string>

#include "ListWindow.h"

namespace velkarix::e2e {

// The labels of the row's own lines, column by column.
inline constexpr const char* ProcessLabels[] = {
    "Process Name      : ", "Size (Kb)         : ", "Created on        : ", "Company Name      : ",
    "Product Name      : ", "Description       : ", "Path              : ",
};

// The lines of a row whose file has these version facts; `mark` stands behind its name.
std::string ProcessBlock(const RowTexts& row, const std::string& mark, const RowTexts& facts);

}  // namespace velkarix::e2e
