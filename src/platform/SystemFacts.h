// Facts of the system and the process's surroundings.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "platform/Errors.h"

namespace velkarix {

// Of OSVERSIONINFOA.
struct VersionInfo {
    std::uint32_t platform = 0;  // 1 is the 95 family, 2 the NT family
    std::uint32_t major = 0;
    std::uint32_t minor = 0;
    std::uint32_t build = 0;  // the whole field, as the call returns it
    std::string servicePack;  // all 128 bytes of szCSDVersion, with the NUL and what follows
};

class SystemFacts {
  public:
    virtual ~SystemFacts() = default;

    virtual std::optional<VersionInfo> GetVersionExA() = 0;
    // The top bit is set on the 95 family.
    virtual std::uint32_t GetVersion() = 0;
    // `capacity` is the buffer's size in bytes with the NUL; nothing on failure.
    virtual std::optional<std::string> GetComputerNameA(std::uint32_t capacity) = 0;
    virtual std::optional<std::string> GetUserNameA(std::uint32_t capacity) = 0;
    // The system's text for a code, without inserts, at most `capacity` bytes with the NUL;
    // empty when it has none. The text keeps the line break at its end.
    virtual std::string FormatMessageA(ErrorCode code, std::uint32_t capacity) = 0;

    // Empty when the variable isn't set.
    virtual std::string GetEnvironmentVariableA(const std::string& name) = 0;
    // Replaces %NAME% where NAME is set; nothing on failure, also when the result with its NUL
    // doesn't fit `capacity` bytes.
    virtual std::optional<std::string> ExpandEnvironmentStringsA(const std::string& text,
                                                                 std::uint32_t capacity) = 0;
    // UTF-16 text in the system's code page; a character that this lacks becomes its default one.
    virtual std::string WideCharToMultiByte(std::u16string_view text) = 0;
    // The full path of the program file of this process.
    virtual std::string GetModuleFileNameA() = 0;
};

}  // namespace velkarix
