#include "platform/win32/WideText.h"

#include "platform/win32/WindowsHeaders.h"

namespace velkarix {

std::wstring ToWide(std::string_view text) {
    const int size = static_cast<int>(text.size());
    std::wstring wide(text.size(), L'\0');  // never more characters than bytes
    const int count = ::MultiByteToWideChar(CP_ACP, 0, text.data(), size, wide.data(), size);
    wide.resize(static_cast<std::size_t>(count));
    return wide;
}

std::string ToAnsi(std::wstring_view text) {
    const int size = static_cast<int>(text.size());
    const int count =
        ::WideCharToMultiByte(CP_ACP, 0, text.data(), size, nullptr, 0, nullptr, nullptr);
    std::string ansi(static_cast<std::size_t>(count), '\0');
    ::WideCharToMultiByte(CP_ACP, 0, text.data(), size, ansi.data(), count, nullptr, nullptr);
    return ansi;
}

}  // namespace velkarix
