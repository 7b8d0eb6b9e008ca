#include "Reports.h"

#include "Wait.h"

namespace velkarix::e2e {

std::vector<std::string> Split(std::string_view text, std::string_view mark) {
    std::vector<std::string> parts;
    for (std::size_t at = text.find(mark); at != text.npos; at = text.find(mark)) {
        parts.emplace_back(text.substr(0, at));
        text.remove_prefix(at + mark.size());
    }
    parts.emplace_back(text);
    return parts;
}

std::string VersionBlock(const RowTexts& facts) {
    std::string text;
    for (std::size_t i = 0; i < std::size(VersionLabels); ++i) {
        text += VersionLabels[i] + facts.at(i) + "\r\n";
    }
    return text;
}

Window OpenReportDialog(const Program& program, const std::string& button) {
    if (!program.Control(button).Click()) return {};
    return program.SystemDialog();
}

Window FileNameBox(const Window& dialog) {
    return WaitFor([&] {
        const Window focus = FocusOf(dialog.Thread());
        return focus.Class() == "Edit" ? focus : Window();
    });
}

bool PressIn(const Window& dialog, int button) {
    return Window(GetDlgItem(dialog.Handle(), button)).Click();
}

bool SaveReport(const Program& program, const std::string& button, const std::string& path) {
    const Window dialog = OpenReportDialog(program, button);
    FileNameBox(dialog).Send(WM_SETTEXT, 0, reinterpret_cast<LPARAM>(path.c_str()));
    return PressIn(dialog, IDOK) && WaitUntil([&] { return !dialog; });
}

std::vector<std::string> HeaderOf(const std::string& report, std::string& rest) {
    constexpr std::string_view Last = "\r\nInternet Explorer    : ";
    const std::size_t end = report.find(EmptyLine, report.find(Last));
    if (end == std::string::npos) return {};
    rest = report.substr(end + EmptyLine.size());
    return Split(report.substr(0, end), "\r\n");
}

std::vector<std::string> BlocksOf(const std::string& report) {
    std::string rest;
    HeaderOf(report, rest);
    std::vector<std::string> blocks = Split(rest, EmptyLine);
    // Every block but the last has lost the end of its last line to the splitting.
    for (std::size_t i = 0; i + 1 < blocks.size(); ++i) blocks[i] += "\r\n";
    return blocks;
}

}  // namespace velkarix::e2e
