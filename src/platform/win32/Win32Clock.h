// The system's clock and its reading of dates.
#pragma once

#include "platform/Clock.h"
#include "platform/win32/SystemLibrary.h"

namespace velkarix {

class Win32Clock : public Clock {
  public:
    SystemTime GetLocalTime() override;
    std::optional<FileTime> FileTimeToLocalFileTime(FileTime time) override;
    std::optional<SystemTime> FileTimeToSystemTime(FileTime time) override;
    std::string GetDateFormatA(const SystemTime& time) override;
    std::string GetTimeFormatA(const SystemTime& time) override;
    std::uint32_t GetTickCount() override;
    void Sleep(std::uint32_t milliseconds) override;
    std::optional<OleDate> VarDateFromStr(const std::string& text) override;

  private:
    SystemLibrary automation_{"oleaut32.dll"};
};

}  // namespace velkarix
