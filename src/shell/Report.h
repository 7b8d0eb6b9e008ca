// Reports: a text file with the facts of the machine and, for each row of a list, lines of labels
// and values, opened in the user's viewer when it is done.
#pragma once

#include <functional>
#include <optional>
#include <span>
#include <string>

#include "forms/ListView.h"
#include "shell/Application.h"

namespace velkarix {

// What the report command of a list says and proposes.
struct ReportCommand {
    const char* emptyMessage;  // when the list has no rows
    const char* fileName;      // proposed in the save dialog
    const char* title;         // of the report; the product's name follows it
};

// What stands behind the label of a line.
enum class ReportValue {
    Column,          // the text of a column
    ColumnWithRisk,  // the same, with the mark of a suspicious row
    YesNo,           // "Yes" for a column that says "True", else "No"
    Fact,            // a row of the file's facts
};

struct ReportLine {
    const char* label;
    ReportValue value;
    int index;                        // of the column or the fact
    const char* riskLabel = nullptr;  // stands in place of the label on a line with the mark
    std::string (*words)(const std::string& text) = nullptr;  // what is written for a column's text
};

// The twelve lines of a file's version facts, in the order and with the labels of all reports.
std::span<const ReportLine> VersionBlock();

// Makes or empties the file and writes the common header. A failure is silent: the list's own
// writer, which comes next, fails in its own way.
void WriteReportHeader(Application& application, const std::string& path, const std::string& title);

// Appends `text` to the report. False when it can't be written, after a message: `failure`, then
// the error's description; what was written up to there stays.
bool AppendReport(Application& application, const std::string& path, const std::string& text,
                  const char* failure, MessageIcon failureIcon = MessageIcon::Information);

// What a list's writer writes.
struct ReportTable {
    std::span<const ReportLine> lines;
    // The path of a row's file, whose version block follows the lines; empty: there is none.
    std::function<std::string(const ListRow&)> filePath;
    const char* failure;  // what the user is told, before the error's description
    MessageIcon failureIcon = MessageIcon::Information;
};

// A block of `lines` for each row in the shown order, with an empty line between two rows.
// `filePath` as in ReportTable.
std::string ReportBlocks(Application& application, ListView& list,
                         std::span<const ReportLine> lines,
                         const std::function<std::string(const ListRow&)>& filePath = {});

// Appends the blocks of the list's rows. Failure looks as with AppendReport.
bool PrintReport(Application& application, ListView& list, const ReportTable& table,
                 const std::string& path);

// Asks for the file of a report, with `fileName` proposed. Nothing when the user cancels.
std::optional<std::string> AskReportFile(Application& application, Form& owner,
                                         const char* fileName);

// The steps of every list's report command: asks for the file, writes the header, has the list
// written by `print`, and opens the file. Nothing is written when the user cancels.
void RunReportCommand(Application& application, Form& owner, const ListView& list,
                      const ReportCommand& command,
                      const std::function<void(const std::string&)>& print);

}  // namespace velkarix
