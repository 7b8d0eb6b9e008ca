#include "platform/win32/Win32Token.h"

#include "platform/win32/WindowsHeaders.h"

namespace velkarix {

ProcessHandle Win32Token::GetCurrentProcess() {
    return reinterpret_cast<ProcessHandle>(::GetCurrentProcess());
}

TokenHandle Win32Token::OpenProcessToken(ProcessHandle process, std::uint32_t access) {
    const auto call = advapi_.Find<decltype(&::OpenProcessToken)>("OpenProcessToken");
    HANDLE token = nullptr;
    if (call == nullptr || !call(reinterpret_cast<HANDLE>(process), access, &token)) return 0;
    return reinterpret_cast<TokenHandle>(token);
}

std::optional<Luid> Win32Token::LookupPrivilegeValueA(const std::string& system,
                                                      const std::string& name) {
    const auto call = advapi_.Find<decltype(&::LookupPrivilegeValueA)>("LookupPrivilegeValueA");
    LUID id{};
    if (call == nullptr || !call(system.c_str(), name.c_str(), &id)) return std::nullopt;
    return Luid{static_cast<std::uint32_t>(id.HighPart)} << 32 | id.LowPart;
}

bool Win32Token::AdjustTokenPrivileges(TokenHandle token, Luid privilege,
                                       std::uint32_t attributes) {
    const auto call = advapi_.Find<decltype(&::AdjustTokenPrivileges)>("AdjustTokenPrivileges");
    TOKEN_PRIVILEGES privileges{};
    privileges.PrivilegeCount = 1;
    privileges.Privileges[0].Luid.LowPart = static_cast<DWORD>(privilege);
    privileges.Privileges[0].Luid.HighPart = static_cast<LONG>(privilege >> 32);
    privileges.Privileges[0].Attributes = attributes;
    return call != nullptr &&
           call(reinterpret_cast<HANDLE>(token), FALSE, &privileges, 0, nullptr, nullptr) != FALSE;
}

bool Win32Token::CloseToken(TokenHandle token) {
    return ::CloseHandle(reinterpret_cast<HANDLE>(token)) != FALSE;
}

}  // namespace velkarix
