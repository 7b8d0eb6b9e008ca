// Windows and menus of the running system.
#pragma once

#include "platform/WindowSystem.h"

namespace velkarix {

class Win32WindowSystem : public WindowSystem {
  public:
    bool CreateMutexA(const std::string& name) override;
    WindowHandle FindWindowA(const std::string& windowClass, const std::string& caption) override;
    WindowHandle GetWindow(WindowHandle window, std::uint32_t relation) override;
    bool ShowWindow(WindowHandle window, int showCommand) override;
    bool OpenIcon(WindowHandle window) override;
    bool SetForegroundWindow(WindowHandle window) override;
    MenuHandle GetSystemMenu(WindowHandle window, bool revert) override;
    bool GetMenuItemInfoA(MenuHandle menu, std::uint32_t item, MenuItemInfo& info) override;
    bool SetMenuItemInfoA(MenuHandle menu, std::uint32_t item, const MenuItemInfo& info) override;
    std::int32_t GetWindowLongA(WindowHandle window, int index) override;
    std::int32_t SetWindowLongA(WindowHandle window, int index, std::int32_t value) override;
    bool SetWindowPos(WindowHandle window, std::intptr_t insertAfter, int x, int y, int width,
                      int height, std::uint32_t flags) override;
    WindowHandle GetParent(WindowHandle window) override;
    WindowHandle SetParent(WindowHandle window, WindowHandle parent) override;
    std::intptr_t SendMessageA(WindowHandle window, std::uint32_t message, std::uintptr_t wParam,
                               std::intptr_t lParam) override;
};

}  // namespace velkarix
