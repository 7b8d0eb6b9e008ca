// The clock of the machine in memory: it stands still, in a zone with a fixed distance to UTC, and
// reads dates as US English settings do, or with another short form of dates.
#pragma once

#include "platform/Clock.h"
#include "tests/machine/CallJournal.h"

namespace velkarix {

// A calendar time as the disk keeps times, and back; both without any zone.
FileTime ToFileTime(const SystemTime& time);
SystemTime ToSystemTime(FileTime time);
// The same calendar time with its day of the week filled in.
SystemTime MakeTime(int year, int month, int day, int hour = 0, int minute = 0, int second = 0);

class MemoryClock : public Clock {
  public:
    explicit MemoryClock(CallJournal& journal) : journal_(journal) {}

    // The present local time; noon of 1 June 2004 at first.
    void SetLocalTime(const SystemTime& time) { now_ = time; }
    // How many minutes local time is ahead of UTC; 0 at first.
    void SetUtcOffset(int minutes) { offsetMinutes_ = minutes; }
    // The user's short form of dates: day (d, dd), month (M, MM) and year (yyyy) in some order,
    // with one separator between them; "M/d/yyyy" at first.
    void SetShortDate(const std::string& form) { shortDate_ = form; }
    // Whether the system has the automation library; it does at first.
    void SetHasAutomation(bool there) { hasAutomation_ = there; }

    // How many milliseconds go by whenever the program looks at the ticks; 0 at first.
    void SetTickStep(std::uint32_t milliseconds) { tickStep_ = milliseconds; }

    // How long the program slept in all.
    std::uint32_t SleptMilliseconds() const { return slept_; }

    // ---- Clock
    SystemTime GetLocalTime() override;
    std::optional<FileTime> FileTimeToLocalFileTime(FileTime time) override;
    std::optional<SystemTime> FileTimeToSystemTime(FileTime time) override;
    std::string GetDateFormatA(const SystemTime& time) override;
    std::string GetTimeFormatA(const SystemTime& time) override;
    // Not written down: it can't fail, and tells of nothing but the time.
    std::uint32_t GetTickCount() override { return ticks_ += tickStep_; }
    void Sleep(std::uint32_t milliseconds) override;
    // Dates in the order and with the separator of the short form, the year with two or four
    // digits, or yyyy-mm-dd; each also with h:mm, h:mm:ss and AM or PM behind it.
    std::optional<OleDate> VarDateFromStr(const std::string& text) override;

  private:
    CallJournal& journal_;
    SystemTime now_ = MakeTime(2004, 6, 1, 12);
    int offsetMinutes_ = 0;
    std::string shortDate_ = "M/d/yyyy";
    bool hasAutomation_ = true;
    std::uint32_t slept_ = 0;
    std::uint32_t ticks_ = 0;
    std::uint32_t tickStep_ = 0;
};

}  // namespace velkarix
