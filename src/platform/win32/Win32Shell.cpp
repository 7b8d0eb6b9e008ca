#include "platform/win32/Win32Shell.h"

#include "platform/win32/IconPicture.h"
#include "platform/win32/WindowsHeaders.h"

// The header of the shell needs the system's before it.
#include <shellapi.h>

namespace velkarix {
namespace {

// Null in place of an empty text: some shells take an empty verb or folder for a wrong one.
const char* TextOrNone(const std::string& text) {
    return text.empty() ? nullptr : text.c_str();
}

// What ExtractIconExA gives for a file that isn't there.
constexpr UINT NoFile = 0xFFFFFFFF;

}  // namespace

std::uint32_t Win32Shell::ShellExecuteA(WindowHandle parent, const std::string& verb,
                                        const std::string& file, const std::string& parameters,
                                        const std::string& folder, int showCommand) {
    const auto call = shell_.Find<decltype(&::ShellExecuteA)>("ShellExecuteA");
    if (call == nullptr) return SE_ERR_DLLNOTFOUND;
    const HINSTANCE result = call(reinterpret_cast<HWND>(parent), TextOrNone(verb), file.c_str(),
                                  TextOrNone(parameters), TextOrNone(folder), showCommand);
    return static_cast<std::uint32_t>(reinterpret_cast<UINT_PTR>(result));
}

std::uint32_t Win32Shell::WinExec(const std::string& commandLine, int showCommand) {
    return ::WinExec(commandLine.c_str(), static_cast<UINT>(showCommand));
}

ExtractedIcons Win32Shell::ExtractIconExA(const std::string& path, int index) {
    const auto call = shell_.Find<decltype(&::ExtractIconExA)>("ExtractIconExA");
    if (call == nullptr) return {};
    HICON largeIcon = nullptr;
    HICON smallIcon = nullptr;
    const UINT count = call(path.c_str(), index, &largeIcon, &smallIcon, 1);
    // Without an icon some systems leave anything in the handles.
    if (count == 0 || count == NoFile) {
        return {};
    }
    return {count, reinterpret_cast<IconHandle>(largeIcon),
            reinterpret_cast<IconHandle>(smallIcon)};
}

std::optional<Picture> Win32Shell::DrawIconEx(IconHandle icon) {
    return IconPicture(reinterpret_cast<HICON>(icon));
}

bool Win32Shell::DestroyIcon(IconHandle icon) {
    return ::DestroyIcon(reinterpret_cast<HICON>(icon)) != FALSE;
}

}  // namespace velkarix
