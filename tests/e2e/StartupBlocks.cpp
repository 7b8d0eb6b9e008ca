#include "StartupBlocks.h"

#include "Reports.h"
#include "Samples.h"
#include "StartupRows.h"

namespace velkarix::e2e {

namespace {

constexpr const char* Labels[] = {
    StartupItemLabel,       "Enabled           : ", "Location          : ", "Command           : ",
    "File Name         : ", "Size (Kb)         : ", "Created on        : ", "Company Name      : ",
    "Product Name      : ", "Description       : ", "Path              : "};

// Only the folders have words in the report.
std::string WordsOf(const std::string& location) {
    if (location == "Startup LM") return "All Users Startup Folder";
    if (location == "Startup CU") return "Current User Startup Folder";
    return "";
}

std::string BlockOf(const StartupRow& row) {
    RowTexts texts = row.texts;
    // What is disabled as well has no mark.
    if (row.mark == Mark::Suspicious) texts[0] += RiskMark;
    texts[1] = texts[1] == "True" ? "Yes" : "No";
    texts[2] = WordsOf(texts[2]);
    std::string text;
    for (std::size_t i = 0; i < std::size(Labels); ++i) text += Labels[i] + texts[i] + "\r\n";
    return text + VersionBlock(VersionFacts(row.path));
}

}  // namespace

std::vector<std::string> StartupBlocks(const StartupNode& node) {
    std::vector<std::string> blocks;
    for (const StartupRow& row : StartupRowsOf(node.path)) blocks.push_back(BlockOf(row));
    return blocks;
}

}  // namespace velkarix::e2e
