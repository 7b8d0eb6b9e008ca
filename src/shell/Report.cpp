#include "shell/Report.h"

#include "base/Text.h"
#include "shell/ShellOpen.h"
#include "shell/TextFile.h"
#include "shell/clsProcess.h"
#include "shell/clsSysInfo.h"

namespace velkarix {

namespace {

// In the order of the facts' rows.
constexpr ReportLine VersionLines[] = {
    {"Product Name      : ", ReportValue::Fact, 0},
    {"Product Version   : ", ReportValue::Fact, 1},
    {"File Description  : ", ReportValue::Fact, 2},
    {"File Version      : ", ReportValue::Fact, 3},
    {"Internal Name     : ", ReportValue::Fact, 4},
    {"Original Filename : ", ReportValue::Fact, 5},
    {"Comments          : ", ReportValue::Fact, 6},
    {"Company Name      : ", ReportValue::Fact, 7},
    {"Legal Copyright   : ", ReportValue::Fact, 8},
    {"Legal Trademarks  : ", ReportValue::Fact, 9},
    {"Private Build     : ", ReportValue::Fact, 10},
    {"Special Build     : ", ReportValue::Fact, 11},
};

// One row's block, made line by line.
class RowBlock {
  public:
    RowBlock(const ListRow& row, const clsProcess& facts, const Appearance& appearance)
        : row_(row), facts_(facts), appearance_(appearance) {}

    void Add(std::span<const ReportLine> lines) {
        for (const ReportLine& line : lines) {
            const bool other = line.riskLabel != nullptr && HasRisk();
            text_ += (other ? line.riskLabel : line.label) + ValueOf(line) + std::string(LineBreak);
        }
    }
    const std::string& Text() const { return text_; }

  private:
    bool HasRisk() const { return row_.TextColor() == appearance_.SusColor; }

    std::string ValueOf(const ReportLine& line) const {
        if (line.value == ReportValue::Fact) return facts_.getItem(line.index);
        std::string text = row_.Text(static_cast<std::size_t>(line.index));
        if (line.words != nullptr) text = line.words(text);
        if (line.value == ReportValue::YesNo) return text == "True" ? "Yes" : "No";
        const bool marked = line.value == ReportValue::ColumnWithRisk && HasRisk();
        return marked ? text + " *******[Risk]*******" : text;
    }

    const ListRow& row_;
    const clsProcess& facts_;
    const Appearance& appearance_;
    std::string text_;
};

}  // namespace

std::span<const ReportLine> VersionBlock() {
    return VersionLines;
}

void WriteReportHeader(Application& application, const std::string& path,
                       const std::string& title) {
    clsSysInfo system(application.machine.system, application.registry);
    const SystemDescription facts = system.sysInfo();
    Clock& clock = application.machine.clock;
    const SystemTime now = clock.GetLocalTime();
    const std::string lines[] = {
        title + " " + ApplicationTitle,
        "Version                       : " + ApplicationVersion(),
        "Date                          : " + clock.GetDateFormatA(now) + " " +
            clock.GetTimeFormatA(now),
        "",
        "Computer Name        : " + facts.computerName,
        "User Name            : " + facts.userName,
        "Windows Version      : " + facts.windowsName,
        "Windows Build        : " + facts.windowsBuild,
        "Windows Service Pack : " + facts.servicePack,
        "Internet Explorer    : " + facts.explorerVersion,
        "",
    };
    std::string text;
    for (const std::string& line : lines) text.append(line).append(LineBreak);
    WriteTextFile(application.machine.files, path, text);
}

bool AppendReport(Application& application, const std::string& path, const std::string& text,
                  const char* failure, MessageIcon failureIcon) {
    const ErrorCode result = AppendTextFile(application.machine.files, path, text);
    if (result == error::Success) return true;
    application.Tell(failureIcon, failure + std::string(LineBreak) +
                                      application.registry.GetSystemErrorText(result));
    return false;
}

std::string ReportBlocks(Application& application, ListView& list,
                         std::span<const ReportLine> lines,
                         const std::function<std::string(const ListRow&)>& filePath) {
    clsProcess facts(application.machine);
    std::string text;
    Progress::Work work(application.progress, "Report: " + list.Text(), list.RowCount());
    for (std::size_t i = 0; i < list.RowCount(); ++i) {
        const ListRow& row = list.Row(i);
        work.Step(row.Text(0));
        RowBlock block(row, facts, application.appearance);
        if (filePath) facts.GetFileDescription(filePath(row));
        block.Add(lines);
        if (filePath) block.Add(VersionBlock());
        if (i > 0) text.append(LineBreak);
        text += block.Text();
    }
    return text;
}

bool PrintReport(Application& application, ListView& list, const ReportTable& table,
                 const std::string& path) {
    return AppendReport(application, path,
                        ReportBlocks(application, list, table.lines, table.filePath), table.failure,
                        table.failureIcon);
}

std::optional<std::string> AskReportFile(Application& application, Form& owner,
                                         const char* fileName) {
    return application.desktop.AskSaveFile(owner, {"Text File (*.txt)", "*.txt", fileName});
}

void RunReportCommand(Application& application, Form& owner, const ListView& list,
                      const ReportCommand& command,
                      const std::function<void(const std::string&)>& print) {
    if (list.RowCount() == 0) {
        application.Tell(MessageIcon::Information, command.emptyMessage);
        return;
    }
    const std::optional<std::string> path = AskReportFile(application, owner, command.fileName);
    if (!path) return;
    WriteReportHeader(application, *path, command.title);
    print(*path);
    ShellOpen(application.machine.shell, *path);
}

}  // namespace velkarix
