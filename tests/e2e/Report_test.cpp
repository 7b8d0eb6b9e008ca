// The report of the process page: where it goes, what it says, and who shows it.
#include <algorithm>

#include "Input.h"
#include "ProgramTest.h"
#include "Setup.h"
#include "SystemFacts.h"
#include "Wait.h"

namespace velkarix::e2e {
namespace {

constexpr const char* Labels[] = {
    "Process Name      : ", "Size (Kb)         : ", "Created on        : ", "Company Name      : ",
    "Product Name      : ", "Description       : ", "Path              : ", "Product Name      : ",
    "Product Version   : ", "File Description  : ", "File Version      : ", "Internal Name     : ",
    "Original Filename : ", "Comments          : ", "Company Name      : ", "Legal Copyright   : ",
    "Legal Trademarks  : ", "Private Build     : ", "Special Build     : ",
};
constexpr std::size_t ColumnLines = 7;  // before the version facts

// What separates the parts of the header, and two blocks.
constexpr std::string_view EmptyLine = "\r\n\r\n";

std::string ComputerName() {
    char name[MAX_COMPUTERNAME_LENGTH + 1] = "";
    DWORD size = sizeof name;
    GetComputerNameA(name, &size);
    return name;
}

// With the NUL that the system counts.
std::string UserName() {
    char name[255] = "";
    DWORD size = sizeof name;
    GetUserNameA(name, &size);
    return {name, size};
}

std::string DateAndTime(const SYSTEMTIME& time) {
    char date[64] = "";
    char clock[64] = "";
    GetDateFormatA(LOCALE_USER_DEFAULT, DATE_SHORTDATE, &time, nullptr, date, sizeof date);
    GetTimeFormatA(LOCALE_USER_DEFAULT, 0, &time, nullptr, clock, sizeof clock);
    return std::string(date) + " " + clock;
}

// The moment, by the local clock.
std::string Now() {
    SYSTEMTIME now{};
    GetLocalTime(&now);
    return DateAndTime(now);
}

std::vector<std::string> Split(std::string_view text, std::string_view mark) {
    std::vector<std::string> parts;
    for (std::size_t at = text.find(mark); at != text.npos; at = text.find(mark)) {
        parts.emplace_back(text.substr(0, at));
        text.remove_prefix(at + mark.size());
    }
    parts.emplace_back(text);
    return parts;
}

// The 19 lines of a row with those version facts.
std::string Block(const RowTexts& row, const std::string& mark, const RowTexts& facts) {
    std::string text;
    for (std::size_t i = 0; i < std::size(Labels); ++i) {
        text += Labels[i] + (i < ColumnLines ? row[i] : facts[i - ColumnLines]) +
                (i == 0 ? mark : "") + "\r\n";
    }
    return text;
}

RowTexts SampleFacts(const std::string& name, const char* description, const char* comments) {
    return {"Sample Suite", "1.2",          description,    "1.2.3.4", name, name + ".exe",
            comments,       "Sample Works", "Free to copy", "None",    "",   ""};
}

class EverySystemReport : public ProgramTest {
  protected:
    // Clicks the report's button. The save dialog that comes.
    Window OpenDialog() {
        EXPECT_TRUE(Running().Control("cmdReport").Click());
        return Running().SystemDialog();
    }
    static Window FileName(const Window& dialog) {
        return WaitFor([&] {
            const Window focus = FocusOf(dialog.Thread());
            return focus.Class() == "Edit" ? focus : Window();
        });
    }
    static bool Press(const Window& dialog, int button) {
        return Window(GetDlgItem(dialog.Handle(), button)).Click();
    }
    // Has the report saved by that name in the folder of the installation.
    void Save(const std::string& name) {
        const Window dialog = OpenDialog();
        ASSERT_TRUE(dialog);
        FileName(dialog).Send(WM_SETTEXT, 0, reinterpret_cast<LPARAM>(install_.Path(name).c_str()));
        ASSERT_TRUE(Press(dialog, IDOK));
        ASSERT_TRUE(WaitUntil([&] { return !dialog; }));
    }
    // What was saved by that name, once the viewer was asked to show it.
    std::string Saved(const std::string& name) {
        const std::string opened = Opened();
        EXPECT_NE(opened.find("\"" + install_.Path(name) + "\""), std::string::npos) << opened;
        return install_.Read(name);
    }
    // The header's lines, without their ends; what follows them goes to `rest`.
    static std::vector<std::string> HeaderOf(const std::string& report, std::string& rest) {
        constexpr std::string_view Last = "\r\nInternet Explorer    : ";
        const std::size_t end = report.find(EmptyLine, report.find(Last));
        if (end == std::string::npos) return {};
        rest = report.substr(end + EmptyLine.size());
        return Split(report.substr(0, end), "\r\n");
    }
};

class Report : public EverySystemReport {
  protected:
    std::vector<std::string> BlocksOf(const std::string& report) {
        std::string rest;
        HeaderOf(report, rest);
        std::vector<std::string> blocks = Split(rest, EmptyLine);
        // Every block but the last has lost the end of its last line to the splitting.
        for (std::size_t i = 0; i + 1 < blocks.size(); ++i) blocks[i] += "\r\n";
        return blocks;
    }
};

TEST_F(EverySystemReport, TheHeaderTellsWhatMachineItIs) {
    Start();
    const std::string before = Now();
    Save("Mine.txt");
    const std::string report = Saved("Mine.txt");
    const std::string after = Now();
    const SystemDescription facts = AskSystemFacts();
    std::string rest;
    const std::vector<std::string> lines = HeaderOf(report, rest);
    ASSERT_EQ(lines.size(), 10u) << report;
    constexpr std::string_view DateLabel = "Date                          : ";
    ASSERT_EQ(lines[2].substr(0, DateLabel.size()), DateLabel);
    const std::string moment = lines[2].substr(DateLabel.size());
    EXPECT_GE(moment, before);
    EXPECT_LE(moment, after);
    const std::vector<std::string> others = {
        "Process Report Generated by : Velkarix",
        "Version                       : 1.0",
        lines[2],
        "",
        "Computer Name        : " + ComputerName(),
        "User Name            : " + UserName(),
        "Windows Version      : " + facts.windowsName,
        "Windows Build        : " + facts.windowsBuild,
        "Windows Service Pack : " + facts.servicePack,
        "Internet Explorer    : " + facts.explorerVersion,
    };
    EXPECT_EQ(lines, others);
    EXPECT_EQ(rest.find("Process Name      : "), 0u);
}

TEST_F(Report, EveryRowHasItsBlockInTheOrderOfTheList) {
    Start();
    const std::vector<RowTexts> rows = List().Rows();
    Save("Mine.txt");
    const std::vector<std::string> blocks = BlocksOf(Saved("Mine.txt"));
    ASSERT_EQ(blocks.size(), rows.size());
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const std::vector<std::string> lines = Split(blocks[i], "\r\n");
        ASSERT_EQ(lines.size(), std::size(Labels) + 1) << blocks[i];
        for (std::size_t line = 0; line < std::size(Labels); ++line) {
            EXPECT_EQ(lines[line].find(Labels[line]), 0u) << lines[line];
        }
        for (std::size_t line = 1; line < ColumnLines; ++line) {
            EXPECT_EQ(lines[line], Labels[line] + rows[i][line]);
        }
    }
}

TEST_F(Report, ASampleHasAllItsFactsAndASuspiciousOneItsMark) {
    Start();
    Save("Mine.txt");
    const std::vector<std::string> blocks = BlocksOf(Saved("Mine.txt"));
    const int idle = RowOf("SampleIdle.exe");
    const int suspect = RowOf("SampleSuspect.exe");
    ASSERT_GT(blocks.size(), static_cast<std::size_t>(std::max(idle, suspect)));
    EXPECT_EQ(
        blocks[static_cast<std::size_t>(idle)],
        Block(List().Row(idle), "",
              SampleFacts("SampleIdle", "Harmless idle program", "Sleeps until it is ended")));
    EXPECT_EQ(blocks[static_cast<std::size_t>(suspect)],
              Block(List().Row(suspect), " *******[Risk]*******",
                    SampleFacts("SampleSuspect", "Harmless suspect",
                                "The definition lists name this file")));
}

TEST_F(Report, AllShowsNoMark) {
    Start();
    ASSERT_TRUE(Running().Press("optFilter(0)"));
    Save("Mine.txt");
    const std::string report = Saved("Mine.txt");
    EXPECT_NE(report.find("Process Name      : SampleSuspect.exe\r\n"), std::string::npos);
    EXPECT_EQ(report.find("[Risk]"), std::string::npos);
}

TEST_F(Report, ItsNameIsProposed) {
    Start();
    const Window dialog = OpenDialog();
    ASSERT_TRUE(dialog);
    EXPECT_EQ(FileName(dialog).Text(), "ProcessReport.txt");
    EXPECT_TRUE(Press(dialog, IDCANCEL));
}

TEST_F(Report, CancelWritesAndShowsNothing) {
    Start();
    const Window dialog = OpenDialog();
    ASSERT_TRUE(dialog);
    FileName(dialog).Send(WM_SETTEXT, 0,
                          reinterpret_cast<LPARAM>(install_.Path("Mine.txt").c_str()));
    ASSERT_TRUE(Press(dialog, IDCANCEL));
    ASSERT_TRUE(WaitUntil([&] { return !dialog; }));
    EXPECT_TRUE(Running().Press("cmdRefresh"));
    EXPECT_FALSE(install_.Exists("Mine.txt"));
    EXPECT_EQ(ReadWholeFile(SamplePath("SampleRecorder.log")), "");
}

TEST_F(Report, AnExistingFileIsReplacedWhenTheUserAgrees) {
    install_.Write("Mine.txt", std::string(100000, 'x'));
    Start();
    const Window dialog = OpenDialog();
    ASSERT_TRUE(dialog);
    FileName(dialog).Send(WM_SETTEXT, 0,
                          reinterpret_cast<LPARAM>(install_.Path("Mine.txt").c_str()));
    ASSERT_TRUE(Press(dialog, IDOK));
    const Window question = WaitFor([&] {
        const Window top = Running().SystemDialog();
        return top == dialog ? Window() : top;
    });
    ASSERT_TRUE(question);
    EXPECT_TRUE(Answer(question, IDYES));
    const std::string report = Saved("Mine.txt");
    EXPECT_EQ(report.find("Process Report Generated by : Velkarix\r\n"), 0u);
    EXPECT_EQ(report.find("xxx"), std::string::npos);
}

}  // namespace
}  // namespace velkarix::e2e
