// Time: the system's clock, its time conversions and its reading and writing of dates.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace velkarix {

// 100-nanosecond steps since 1601-01-01 UTC, as the file system keeps them.
using FileTime = std::uint64_t;

// A date and time of day on the calendar.
struct SystemTime {
    int year = 0;
    int month = 0;      // 1 to 12
    int dayOfWeek = 0;  // 0 is Sunday
    int day = 0;        // 1 to 31
    int hour = 0;
    int minute = 0;
    int second = 0;
    int milliseconds = 0;

    friend bool operator==(const SystemTime&, const SystemTime&) = default;
};

// Days since 1899-12-30; the fraction is the time of day (the automation library's date).
using OleDate = double;

class Clock {
  public:
    virtual ~Clock() = default;

    // The present date and time in the system's time zone.
    virtual SystemTime GetLocalTime() = 0;
    // Nothing when the time is out of the system's range.
    virtual std::optional<FileTime> FileTimeToLocalFileTime(FileTime time) = 0;
    virtual std::optional<SystemTime> FileTimeToSystemTime(FileTime time) = 0;
    // The date and the time of day in the user's short date and time formats.
    virtual std::string GetDateFormatA(const SystemTime& time) = 0;
    virtual std::string GetTimeFormatA(const SystemTime& time) = 0;
    // Milliseconds since some moment in the past; begins at 0 again after 49 days.
    virtual std::uint32_t GetTickCount() = 0;
    // Blocks the program.
    virtual void Sleep(std::uint32_t milliseconds) = 0;
    // Reads a date in any form that the user's settings accept; nothing when the text is no date
    // or the automation library isn't there.
    virtual std::optional<OleDate> VarDateFromStr(const std::string& text) = 0;
};

}  // namespace velkarix
