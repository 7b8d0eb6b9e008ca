#include "ProcessReport.h"

#include "Reports.h"

namespace velkarix::e2e {

std::string ProcessBlock(const RowTexts& row, const std::string& mark, const RowTexts& facts) {
    std::string text;
    for (std::size_t i = 0; i < std::size(ProcessLabels); ++i) {
        text += ProcessLabels[i] + row.at(i) + (i == 0 ? mark : "") + "\r\n";
    }
    return text + VersionBlock(facts);
}

}  // namespace velkarix::e2e
