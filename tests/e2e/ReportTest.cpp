#include "ReportTest.h"

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

Window ReportTest::OpenDialog(const std::string& button) {
    EXPECT_TRUE(Running().Control(button).Click());
    return Running().SystemDialog();
}

Window ReportTest::FileName(const Window& dialog) {
    return WaitFor([&] {
        const Window focus = FocusOf(dialog.Thread());
        return focus.Class() == "Edit" ? focus : Window();
    });
}

bool ReportTest::Press(const Window& dialog, int button) {
    return Window(GetDlgItem(dialog.Handle(), button)).Click();
}

std::string ReportTest::Save(const std::string& button, const std::string& name) {
    const Window dialog = OpenDialog(button);
    EXPECT_TRUE(dialog);
    FileName(dialog).Send(WM_SETTEXT, 0, reinterpret_cast<LPARAM>(install_.Path(name).c_str()));
    EXPECT_TRUE(Press(dialog, IDOK));
    EXPECT_TRUE(WaitUntil([&] { return !dialog; }));
    const std::string opened = Opened();
    EXPECT_NE(opened.find("\"" + install_.Path(name) + "\""), std::string::npos) << opened;
    return install_.Read(name);
}

std::vector<std::string> ReportTest::HeaderOf(const std::string& report, std::string& rest) {
    constexpr std::string_view Last = "\r\nInternet Explorer    : ";
    const std::size_t end = report.find(EmptyLine, report.find(Last));
    if (end == std::string::npos) return {};
    rest = report.substr(end + EmptyLine.size());
    return Split(report.substr(0, end), "\r\n");
}

std::vector<std::string> ReportTest::BlocksOf(const std::string& report) {
    std::string rest;
    HeaderOf(report, rest);
    std::vector<std::string> blocks = Split(rest, EmptyLine);
    // Every block but the last has lost the end of its last line to the splitting.
    for (std::size_t i = 0; i + 1 < blocks.size(); ++i) blocks[i] += "\r\n";
    return blocks;
}

}  // namespace velkarix::e2e
