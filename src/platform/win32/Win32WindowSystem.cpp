#include "platform/win32/Win32WindowSystem.h"

#include <cstddef>

#include "platform/win32/WindowsHeaders.h"

namespace velkarix {
namespace {

HWND WindowOf(WindowHandle number) {
    return reinterpret_cast<HWND>(number);
}

WindowHandle Number(HWND window) {
    return reinterpret_cast<WindowHandle>(window);
}

HMENU MenuOf(MenuHandle number) {
    return reinterpret_cast<HMENU>(number);
}

// The size of the structure as the first systems know it, without the bitmap that came later.
constexpr UINT ItemInfoSize = offsetof(MENUITEMINFOA, hbmpItem);
static_assert(sizeof(void*) != 4 || ItemInfoSize == 44);

MENUITEMINFOA Structure(const MenuItemInfo& info) {
    MENUITEMINFOA structure{};
    structure.cbSize = ItemInfoSize;
    structure.fMask = info.mask;
    structure.fState = info.state;
    structure.wID = info.id;
    return structure;
}

}  // namespace

bool Win32WindowSystem::CreateMutexA(const std::string& name) {
    // Never closed here: it is to live as long as the process, and ends with it.
    ::CreateMutexA(nullptr, FALSE, name.c_str());
    return ::GetLastError() == ERROR_ALREADY_EXISTS;
}

WindowHandle Win32WindowSystem::FindWindowA(const std::string& windowClass,
                                            const std::string& caption) {
    return Number(::FindWindowA(windowClass.c_str(), caption.c_str()));
}

WindowHandle Win32WindowSystem::GetWindow(WindowHandle window, std::uint32_t relation) {
    return Number(::GetWindow(WindowOf(window), relation));
}

bool Win32WindowSystem::ShowWindow(WindowHandle window, int showCommand) {
    return ::ShowWindow(WindowOf(window), showCommand) != FALSE;
}

bool Win32WindowSystem::OpenIcon(WindowHandle window) {
    return ::OpenIcon(WindowOf(window)) != FALSE;
}

bool Win32WindowSystem::SetForegroundWindow(WindowHandle window) {
    return ::SetForegroundWindow(WindowOf(window)) != FALSE;
}

MenuHandle Win32WindowSystem::GetSystemMenu(WindowHandle window, bool revert) {
    return reinterpret_cast<MenuHandle>(::GetSystemMenu(WindowOf(window), revert));
}

bool Win32WindowSystem::GetMenuItemInfoA(MenuHandle menu, std::uint32_t item, MenuItemInfo& info) {
    MENUITEMINFOA structure = Structure(info);
    if (!::GetMenuItemInfoA(MenuOf(menu), item, FALSE, &structure)) return false;
    info.state = structure.fState;
    info.id = structure.wID;
    return true;
}

bool Win32WindowSystem::SetMenuItemInfoA(MenuHandle menu, std::uint32_t item,
                                         const MenuItemInfo& info) {
    const MENUITEMINFOA structure = Structure(info);
    return ::SetMenuItemInfoA(MenuOf(menu), item, FALSE, &structure) != FALSE;
}

std::int32_t Win32WindowSystem::GetWindowLongA(WindowHandle window, int index) {
    return ::GetWindowLongA(WindowOf(window), index);
}

std::int32_t Win32WindowSystem::SetWindowLongA(WindowHandle window, int index, std::int32_t value) {
    return ::SetWindowLongA(WindowOf(window), index, value);
}

bool Win32WindowSystem::SetWindowPos(WindowHandle window, std::intptr_t insertAfter, int x, int y,
                                     int width, int height, std::uint32_t flags) {
    return ::SetWindowPos(WindowOf(window), reinterpret_cast<HWND>(insertAfter), x, y, width,
                          height, flags) != FALSE;
}

WindowHandle Win32WindowSystem::GetParent(WindowHandle window) {
    return Number(::GetParent(WindowOf(window)));
}

WindowHandle Win32WindowSystem::SetParent(WindowHandle window, WindowHandle parent) {
    return Number(::SetParent(WindowOf(window), WindowOf(parent)));
}

std::intptr_t Win32WindowSystem::SendMessageA(WindowHandle window, std::uint32_t message,
                                              std::uintptr_t wParam, std::intptr_t lParam) {
    return ::SendMessageA(WindowOf(window), message, wParam, lParam);
}

}  // namespace velkarix
