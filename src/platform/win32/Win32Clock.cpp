#include "platform/win32/Win32Clock.h"

#include "platform/win32/FileTimes.h"
#include "platform/win32/WindowsHeaders.h"

namespace velkarix {
namespace {

SystemTime Fields(const SYSTEMTIME& time) {
    return {time.wYear, time.wMonth,  time.wDayOfWeek, time.wDay,
            time.wHour, time.wMinute, time.wSecond,    time.wMilliseconds};
}

// Longer than any form of a date or a time.
constexpr int FormatCapacity = 128;

SYSTEMTIME SystemFields(const SystemTime& time) {
    const auto word = [](int number) { return static_cast<WORD>(number); };
    return {word(time.year), word(time.month),  word(time.dayOfWeek), word(time.day),
            word(time.hour), word(time.minute), word(time.second),    word(time.milliseconds)};
}

std::wstring WideText(const std::string& text) {
    const int size = static_cast<int>(text.size());
    std::wstring wide(text.size(), L'\0');
    const int length = ::MultiByteToWideChar(CP_ACP, 0, text.data(), size, wide.data(), size);
    wide.resize(static_cast<std::size_t>(length));
    return wide;
}

}  // namespace

std::string Win32Clock::GetDateFormatA(const SystemTime& time) {
    const SYSTEMTIME fields = SystemFields(time);
    char text[FormatCapacity] = {};
    ::GetDateFormatA(LOCALE_USER_DEFAULT, DATE_SHORTDATE, &fields, nullptr, text, FormatCapacity);
    return text;
}

std::string Win32Clock::GetTimeFormatA(const SystemTime& time) {
    const SYSTEMTIME fields = SystemFields(time);
    char text[FormatCapacity] = {};
    ::GetTimeFormatA(LOCALE_USER_DEFAULT, 0, &fields, nullptr, text, FormatCapacity);
    return text;
}

std::uint32_t Win32Clock::GetTickCount() {
    return ::GetTickCount();
}

void Win32Clock::Sleep(std::uint32_t milliseconds) {
    ::Sleep(milliseconds);
}

SystemTime Win32Clock::GetLocalTime() {
    SYSTEMTIME time;
    ::GetLocalTime(&time);
    return Fields(time);
}

std::optional<FileTime> Win32Clock::FileTimeToLocalFileTime(FileTime time) {
    const FILETIME given = HalvesOf(time);
    FILETIME local;
    if (!::FileTimeToLocalFileTime(&given, &local)) return std::nullopt;
    return WholeOf(local);
}

std::optional<SystemTime> Win32Clock::FileTimeToSystemTime(FileTime time) {
    const FILETIME given = HalvesOf(time);
    SYSTEMTIME fields;
    if (!::FileTimeToSystemTime(&given, &fields)) return std::nullopt;
    return Fields(fields);
}

std::optional<OleDate> Win32Clock::VarDateFromStr(const std::string& text) {
    using Call = HRESULT(WINAPI*)(const wchar_t*, LCID, ULONG, double*);
    const auto call = automation_.Find<Call>("VarDateFromStr");
    if (call == nullptr) return std::nullopt;
    OleDate date = 0;
    if (FAILED(call(WideText(text).c_str(), LOCALE_USER_DEFAULT, 0, &date))) return std::nullopt;
    return date;
}

}  // namespace velkarix
