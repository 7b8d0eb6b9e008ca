// Facts of the running system and of this process.
#pragma once

#include "platform/SystemFacts.h"

namespace velkarix {

class Win32SystemFacts : public SystemFacts {
  public:
    std::optional<VersionInfo> GetVersionExA() override;
    std::uint32_t GetVersion() override;
    std::optional<std::string> GetComputerNameA(std::uint32_t capacity) override;
    std::optional<std::string> GetUserNameA(std::uint32_t capacity) override;
    std::string FormatMessageA(ErrorCode code, std::uint32_t capacity) override;
    std::string GetEnvironmentVariableA(const std::string& name) override;
    std::optional<std::string> ExpandEnvironmentStringsA(const std::string& text,
                                                         std::uint32_t capacity) override;
    std::string WideCharToMultiByte(std::u16string_view text) override;
    std::string GetModuleFileNameA() override;
};

}  // namespace velkarix
