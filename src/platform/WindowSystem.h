// Window calls that the program's start and its frame need: finding another instance's window,
// and taking a window's sizing away.
#pragma once

#include <cstdint>
#include <string>

namespace velkarix {

// Opaque handles; 0 is none.
using WindowHandle = std::uintptr_t;
using MenuHandle = std::uintptr_t;

// The parts of MENUITEMINFOA that are used; `mask` says which (1 state, 2 id).
struct MenuItemInfo {
    std::uint32_t mask = 0;
    std::uint32_t state = 0;
    std::uint32_t id = 0;
};

class WindowSystem {
  public:
    virtual ~WindowSystem() = default;

    // Makes a named mutex that lives as long as the process. True when it existed before.
    virtual bool CreateMutexA(const std::string& name) = 0;

    virtual WindowHandle FindWindowA(const std::string& windowClass,
                                     const std::string& caption) = 0;
    virtual WindowHandle GetWindow(WindowHandle window, std::uint32_t relation) = 0;
    virtual bool ShowWindow(WindowHandle window, int showCommand) = 0;
    virtual bool OpenIcon(WindowHandle window) = 0;
    virtual bool SetForegroundWindow(WindowHandle window) = 0;

    virtual MenuHandle GetSystemMenu(WindowHandle window, bool revert) = 0;
    // Items are found by their command number. The structure's size is told as 44 bytes.
    virtual bool GetMenuItemInfoA(MenuHandle menu, std::uint32_t item, MenuItemInfo& info) = 0;
    virtual bool SetMenuItemInfoA(MenuHandle menu, std::uint32_t item,
                                  const MenuItemInfo& info) = 0;
    virtual std::int32_t GetWindowLongA(WindowHandle window, int index) = 0;
    virtual std::int32_t SetWindowLongA(WindowHandle window, int index, std::int32_t value) = 0;
    virtual bool SetWindowPos(WindowHandle window, std::intptr_t insertAfter, int x, int y,
                              int width, int height, std::uint32_t flags) = 0;
    virtual WindowHandle GetParent(WindowHandle window) = 0;
    virtual WindowHandle SetParent(WindowHandle window, WindowHandle parent) = 0;
    virtual std::intptr_t SendMessageA(WindowHandle window, std::uint32_t message,
                                       std::uintptr_t wParam, std::intptr_t lParam) = 0;
};

}  // namespace velkarix
