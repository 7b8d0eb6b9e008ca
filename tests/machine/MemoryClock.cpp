#include "tests/machine/MemoryClock.h"

#include <algorithm>
#include <cctype>
#include <chrono>
#include <map>
#include <string_view>

#include "tests/machine/CaseFold.h"

namespace velkarix {
namespace {

constexpr FileTime stepsPerMillisecond = 10'000;
constexpr FileTime stepsPerDay = 86'400'000 * stepsPerMillisecond;
constexpr FileTime firstInvalidTime = 0x8000'0000'0000'0000;

constexpr std::chrono::sys_days fileTimeEpoch =
    std::chrono::year(1601) / std::chrono::January / std::chrono::day(1);
constexpr std::chrono::sys_days oleEpoch =
    std::chrono::year(1899) / std::chrono::December / std::chrono::day(30);

std::chrono::year_month_day DateOf(int year, int month, int day) {
    return {std::chrono::year(year), std::chrono::month(static_cast<unsigned>(month)),
            std::chrono::day(static_cast<unsigned>(day))};
}

// Takes a number of at most `digits` digits from the front of the text; -1 when there is none.
int TakeNumber(std::string_view& text, std::size_t digits) {
    std::size_t count = 0;
    int number = 0;
    while (count < digits && count < text.size() &&
           std::isdigit(static_cast<unsigned char>(text[count])) != 0) {
        number = number * 10 + (text[count++] - '0');
    }
    text.remove_prefix(count);
    return count == 0 ? -1 : number;
}

bool Take(std::string_view& text, std::string_view wanted) {
    const bool found = text.starts_with(wanted);
    text.remove_prefix(found ? wanted.size() : 0);
    return found;
}

// What a short form of dates is made of.
struct DateForm {
    std::string order;  // 'd', 'M' and 'y', each once
    char separator = 0;
};

DateForm FormOf(std::string_view shortDate) {
    DateForm form;
    for (const char c : shortDate) {
        if (c != 'd' && c != 'M' && c != 'y') {
            form.separator = c;
        } else if (form.order.find(c) == std::string::npos) {
            form.order += c;
        }
    }
    return form;
}

int FullYear(int year) {
    // As the automation library takes two digits.
    return year >= 100 ? year : year + (year < 30 ? 2000 : 1900);
}

// The date at the front of the text; one that isn't on the calendar when there is none.
std::chrono::year_month_day TakeDate(std::string_view& text, DateForm form) {
    constexpr std::size_t yearDigits = 4;
    if (text.find('-') == yearDigits) {
        form = {"yMd", '-'};
    }
    std::map<char, int> parts;
    for (const char part : form.order) {
        const bool separated = parts.empty() || Take(text, {&form.separator, 1});
        parts[part] = TakeNumber(text, part == 'y' ? yearDigits : 2);
        if (!separated || parts[part] < 0) {
            return DateOf(0, 0, 0);
        }
    }
    return DateOf(FullYear(parts['y']), parts['M'], parts['d']);
}

// The time of day that is the rest of the text, in seconds; -1 when it is no time.
int TakeTime(std::string_view text) {
    int hour = TakeNumber(text, 2);
    const bool colon = Take(text, ":");
    const int minute = TakeNumber(text, 2);
    const int second = Take(text, ":") ? TakeNumber(text, 2) : 0;
    Take(text, " ");
    const bool isMorning = Take(text, "AM");
    const bool isAfternoon = !isMorning && Take(text, "PM");
    if (!text.empty() || !colon || hour < 0 || hour > 23 || minute < 0 || minute > 59 ||
        second < 0 || second > 59) {
        return -1;
    }
    if ((isMorning || isAfternoon) && hour <= 12) {
        hour = hour % 12 + (isAfternoon ? 12 : 0);
    }
    return (hour * 60 + minute) * 60 + second;
}

}  // namespace

FileTime ToFileTime(const SystemTime& time) {
    const std::chrono::sys_days date = DateOf(time.year, time.month, time.day);
    const std::int64_t seconds = (time.hour * 60 + time.minute) * 60 + time.second;
    return static_cast<FileTime>((date - fileTimeEpoch).count()) * stepsPerDay +
           static_cast<FileTime>(seconds * 1000 + time.milliseconds) * stepsPerMillisecond;
}

SystemTime ToSystemTime(FileTime time) {
    const std::chrono::sys_days days =
        fileTimeEpoch + std::chrono::days(static_cast<int>(time / stepsPerDay));
    const std::chrono::year_month_day date(days);
    const int milliseconds = static_cast<int>(time % stepsPerDay / stepsPerMillisecond);
    SystemTime result;
    result.year = static_cast<int>(date.year());
    result.month = static_cast<int>(static_cast<unsigned>(date.month()));
    result.dayOfWeek = static_cast<int>(std::chrono::weekday(days).c_encoding());
    result.day = static_cast<int>(static_cast<unsigned>(date.day()));
    result.hour = milliseconds / 3'600'000;
    result.minute = milliseconds / 60'000 % 60;
    result.second = milliseconds / 1000 % 60;
    result.milliseconds = milliseconds % 1000;
    return result;
}

SystemTime MakeTime(int year, int month, int day, int hour, int minute, int second) {
    return ToSystemTime(ToFileTime({year, month, 0, day, hour, minute, second, 0}));
}

SystemTime MemoryClock::GetLocalTime() {
    journal_.Enter("GetLocalTime");
    return now_;
}

std::optional<FileTime> MemoryClock::FileTimeToLocalFileTime(FileTime time) {
    if (journal_.Enter("FileTimeToLocalFileTime")) {
        return std::nullopt;
    }
    const auto offset = static_cast<FileTime>(offsetMinutes_ * 60'000LL);
    return time + offset * stepsPerMillisecond;
}

std::optional<SystemTime> MemoryClock::FileTimeToSystemTime(FileTime time) {
    if (journal_.Enter("FileTimeToSystemTime") || time >= firstInvalidTime) {
        return std::nullopt;
    }
    return ToSystemTime(time);
}

std::string MemoryClock::GetDateFormatA(const SystemTime& time) {
    journal_.Enter("GetDateFormatA");
    std::string text;
    for (std::string_view rest = shortDate_; !rest.empty();) {
        const char part = rest.front();
        const std::size_t count = std::min(rest.find_first_not_of(part), rest.size());
        rest.remove_prefix(count);
        const int number = part == 'd' ? time.day : part == 'M' ? time.month : time.year;
        if (part != 'd' && part != 'M' && part != 'y') {
            text += part;
        } else {
            const std::string digits = std::to_string(number);
            text.append(count - std::min(count, digits.size()), '0').append(digits);
        }
    }
    return text;
}

std::string MemoryClock::GetTimeFormatA(const SystemTime& time) {
    journal_.Enter("GetTimeFormatA");
    const auto twoDigits = [](int number) {
        return (number < 10 ? "0" : "") + std::to_string(number);
    };
    const int hour = time.hour % 12 == 0 ? 12 : time.hour % 12;
    return std::to_string(hour) + ":" + twoDigits(time.minute) + ":" + twoDigits(time.second) +
           (time.hour < 12 ? " AM" : " PM");
}

void MemoryClock::Sleep(std::uint32_t milliseconds) {
    journal_.Enter("Sleep", std::to_string(milliseconds));
    slept_ += milliseconds;
    ticks_ += milliseconds;
}

std::optional<OleDate> MemoryClock::VarDateFromStr(const std::string& text) {
    if (journal_.Enter("VarDateFromStr", text) || !hasAutomation_) {
        return std::nullopt;
    }
    const std::string folded = FoldCase(text);
    std::string_view rest = folded;
    rest.remove_prefix(std::min(rest.find_first_not_of(' '), rest.size()));
    rest.remove_suffix(rest.size() - (rest.find_last_not_of(' ') + 1));
    const std::chrono::year_month_day date = TakeDate(rest, FormOf(shortDate_));
    const int seconds = rest.empty() ? 0 : (Take(rest, " ") ? TakeTime(rest) : -1);
    if (!date.ok() || seconds < 0) {
        return std::nullopt;
    }
    const std::chrono::sys_days days = date;
    return static_cast<OleDate>((days - oleEpoch).count()) + seconds / 86'400.0;
}

}  // namespace velkarix
