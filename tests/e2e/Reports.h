// The reports of the lists: saved by the system's dialog, and taken apart.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "ListWindow.h"
#include "Program.h"

namespace velkarix::e2e {

// What separates the parts of a report's header, and two of its blocks.
inline constexpr std::string_view EmptyLine = "\r\n\r\n";

// What marks the first line of a suspicious item.
inline constexpr const char* RiskMark = " *******[Risk]*******";

// The parts of a text between the marks.
std::vector<std::string> Split(std::string_view text, std::string_view mark);

inline constexpr const char* VersionLabels[] = {
    "Product Name      : ", "Product Version   : ", "File Description  : ", "File Version      : ",
    "Internal Name     : ", "Original Filename : ", "Comments          : ", "Company Name      : ",
    "Legal Copyright   : ", "Legal Trademarks  : ", "Private Build     : ", "Special Build     : ",
};

// The twelve lines of a file's version facts.
std::string VersionBlock(const RowTexts& facts);

// Clicks a report's button. The save dialog that comes.
Window OpenReportDialog(const Program& program, const std::string& button);
// The box for the name, once the dialog has given it the focus.
Window FileNameBox(const Window& dialog);
bool PressIn(const Window& dialog, int button);
// Has the report saved at that path; false when a step fails.
bool SaveReport(const Program& program, const std::string& button, const std::string& path);

// The header's lines, without their ends; what follows them goes to `rest`.
std::vector<std::string> HeaderOf(const std::string& report, std::string& rest);
// The blocks behind the header, each with the end of its last line.
std::vector<std::string> BlocksOf(const std::string& report);

}  // namespace velkarix::e2e
