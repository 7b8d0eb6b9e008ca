#include "LastUpdate.h"

#include <windows.h>

namespace velkarix::e2e {

std::string DaysAgo(int days) {
    SYSTEMTIME now{};
    GetLocalTime(&now);
    ULARGE_INTEGER time{};
    FILETIME file{};
    SystemTimeToFileTime(&now, &file);
    time.LowPart = file.dwLowDateTime;
    time.HighPart = file.dwHighDateTime;
    time.QuadPart -= static_cast<ULONGLONG>(days) * 24 * 60 * 60 * 10'000'000;
    file = {time.LowPart, time.HighPart};
    FileTimeToSystemTime(&file, &now);
    char text[64] = "";
    GetDateFormatA(LOCALE_USER_DEFAULT, DATE_SHORTDATE, &now, nullptr, text, sizeof text);
    return text;
}

void SetLastUpdate(const Install& install, const std::string& date) {
    install.Write("database.ini", "[Database]\r\nVersion=7.5\r\n[Update]\r\nLast=" + date + "\r\n");
}

}  // namespace velkarix::e2e
