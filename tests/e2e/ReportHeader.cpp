#include "ReportHeader.h"

#include <windows.h>
#include <gtest/gtest.h>

#include <string_view>

#include "SystemFacts.h"

namespace velkarix::e2e {

namespace {

constexpr std::string_view DateLabel = "Date                          : ";

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

}  // namespace

std::string MomentNow() {
    SYSTEMTIME now{};
    GetLocalTime(&now);
    return DateAndTime(now);
}

void ExpectHeader(const std::vector<std::string>& lines, const std::string& title,
                  const std::string& notBefore, const std::string& notAfter) {
    ASSERT_EQ(lines.size(), 10u);
    ASSERT_EQ(lines[2].substr(0, DateLabel.size()), DateLabel);
    const std::string moment = lines[2].substr(DateLabel.size());
    EXPECT_GE(moment, notBefore);
    EXPECT_LE(moment, notAfter);
    const SystemDescription facts = AskSystemFacts();
    const std::vector<std::string> expected = {
        title + " Velkarix",
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
    EXPECT_EQ(lines, expected);
}

}  // namespace velkarix::e2e
