#include "platform/win32/Win32ProfileFiles.h"

#include <algorithm>

#include "platform/win32/SystemText.h"
#include "platform/win32/WindowsHeaders.h"

namespace velkarix {

std::string Win32ProfileFiles::GetPrivateProfileStringA(const std::string& section,
                                                        const std::string& key,
                                                        const std::string& fallback,
                                                        std::uint32_t capacity,
                                                        const std::string& file) {
    std::string buffer(capacity, '\0');
    const DWORD length = ::GetPrivateProfileStringA(section.c_str(), key.c_str(), fallback.c_str(),
                                                    buffer.data(), capacity, file.c_str());
    return TextOf(buffer.data(), std::min(length, DWORD{capacity}));
}

bool Win32ProfileFiles::WritePrivateProfileStringA(const std::string& section,
                                                   const std::string& key, const std::string& value,
                                                   const std::string& file) {
    return ::WritePrivateProfileStringA(section.c_str(), key.c_str(), value.c_str(),
                                        file.c_str()) != FALSE;
}

}  // namespace velkarix
