#include "platform/win32/Win32SystemFacts.h"

#include <algorithm>

#include "platform/win32/SystemText.h"
#include "platform/win32/WideText.h"
#include "platform/win32/WindowsHeaders.h"

namespace velkarix {
namespace {

// Either of the two calls that tell a name; both take the buffer's size with the NUL.
using NameCall = BOOL(WINAPI*)(LPSTR, LPDWORD);

std::optional<std::string> Name(NameCall call, std::uint32_t capacity) {
    std::string buffer(capacity, '\0');
    DWORD size = capacity;
    if (!call(buffer.data(), &size)) return std::nullopt;
    return TextOf(buffer.data(), capacity);
}

}  // namespace

std::optional<VersionInfo> Win32SystemFacts::GetVersionExA() {
    OSVERSIONINFOA info{};
    info.dwOSVersionInfoSize = sizeof(info);
    if (!::GetVersionExA(&info)) return std::nullopt;
    return VersionInfo{info.dwPlatformId, info.dwMajorVersion, info.dwMinorVersion,
                       info.dwBuildNumber,
                       std::string(info.szCSDVersion, sizeof(info.szCSDVersion))};
}

std::uint32_t Win32SystemFacts::GetVersion() {
    return ::GetVersion();
}

std::optional<std::string> Win32SystemFacts::GetComputerNameA(std::uint32_t capacity) {
    return Name(::GetComputerNameA, capacity);
}

std::optional<std::string> Win32SystemFacts::GetUserNameA(std::uint32_t capacity) {
    return Name(::GetUserNameA, capacity);
}

std::string Win32SystemFacts::FormatMessageA(ErrorCode code, std::uint32_t capacity) {
    std::string buffer(capacity, '\0');
    const DWORD length =
        ::FormatMessageA(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr, code,
                         0, buffer.data(), capacity, nullptr);
    buffer.resize(std::min(length, DWORD{capacity}));
    return buffer;
}

std::string Win32SystemFacts::GetEnvironmentVariableA(const std::string& name) {
    // Without a buffer the call tells the size with the NUL.
    const DWORD size = ::GetEnvironmentVariableA(name.c_str(), nullptr, 0);
    std::string buffer(size, '\0');
    const DWORD length = ::GetEnvironmentVariableA(name.c_str(), buffer.data(), size);
    buffer.resize(std::min(length, size));
    return buffer;
}

std::optional<std::string> Win32SystemFacts::ExpandEnvironmentStringsA(const std::string& text,
                                                                       std::uint32_t capacity) {
    std::string buffer(capacity, '\0');
    const DWORD size = ::ExpandEnvironmentStringsA(text.c_str(), buffer.data(), capacity);
    if (size == 0 || size > capacity) return std::nullopt;
    return TextOf(buffer.data(), capacity);
}

std::string Win32SystemFacts::WideCharToMultiByte(std::u16string_view text) {
    return ToAnsi(std::wstring(text.begin(), text.end()));
}

std::string Win32SystemFacts::GetModuleFileNameA() {
    char buffer[MAX_PATH];
    const DWORD length = ::GetModuleFileNameA(nullptr, buffer, MAX_PATH);
    return TextOf(buffer, std::min(length, DWORD{MAX_PATH}));
}

}  // namespace velkarix
