// What the reports of the browser's lists say on the sample machine.
#pragma once

#include <ostream>
#include <string>
#include <vector>

#include "BrowserItems.h"
#include "ListWindow.h"

namespace velkarix::e2e {

// A line of a block: its label, and the column of the row behind it.
struct BrowserReportLine {
    const char* label;
    std::size_t column;
};

struct BrowserReport {
    const BrowserList& list;
    const char* emptyMessage;
    const char* fileName;
    const char* title;
    std::vector<BrowserReportLine> lines;
    bool yesOrNo;       // in place of True or False
    bool versionBlock;  // with the facts of the row's file
};
std::ostream& operator<<(std::ostream& stream, const BrowserReport& report);

// All of them, in the order of the strip.
extern const std::vector<BrowserReport> BrowserReports;

// The blocks of rows that the report's list shows, those of the system's own items among them.
std::vector<std::string> BrowserBlocks(const BrowserReport& report,
                                       const std::vector<RowTexts>& rows);

}  // namespace velkarix::e2e
