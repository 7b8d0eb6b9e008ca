// The windows of the machine in memory: just enough of them to find one, raise it and change its
// system menu and style.
#pragma once

#include <cstdint>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "platform/WindowSystem.h"
#include "tests/machine/CallJournal.h"

namespace velkarix {

// One call of SetWindowPos.
struct WindowPlacing {
    std::intptr_t insertAfter = 0;
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
    std::uint32_t flags = 0;

    friend bool operator==(const WindowPlacing&, const WindowPlacing&) = default;
};

struct SentMessage {
    std::uint32_t message = 0;
    std::uintptr_t wParam = 0;
    std::intptr_t lParam = 0;

    friend bool operator==(const SentMessage&, const SentMessage&) = default;
};

struct MemoryWindow {
    WindowHandle handle = 0;
    std::string windowClass;
    std::string caption;
    bool visible = false;
    bool minimised = false;
    WindowHandle parent = 0;              // 0 is the desktop
    std::map<int, std::int32_t> longs;    // by index: -16 the style, -20 the extended style
    std::vector<MenuItemInfo> menuItems;  // of the system menu, as a sizable window has them
    std::vector<WindowPlacing> placings;
    std::vector<SentMessage> messages;
};

class MemoryWindowSystem : public WindowSystem {
  public:
    explicit MemoryWindowSystem(CallJournal& journal) : journal_(journal) {}

    // A new top-level window, above all others, with a frame, boxes and the usual system menu.
    MemoryWindow& Add(const std::string& windowClass, const std::string& caption);
    // Null when there is no such window.
    MemoryWindow* Find(WindowHandle handle);
    // The window that was brought to the front last; 0 is none.
    WindowHandle Foreground() const { return foreground_; }
    // A mutex that another process holds.
    void AddMutex(const std::string& name) { mutexes_.insert(name); }

    // ---- WindowSystem
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

  private:
    MenuItemInfo* FindMenuItem(MenuHandle menu, std::uint32_t item);

    CallJournal& journal_;
    std::map<WindowHandle, MemoryWindow> windows_;
    std::vector<WindowHandle> order_;  // from the top down
    WindowHandle foreground_ = 0;
    std::set<std::string> mutexes_;
    WindowHandle nextWindow_ = 0x20010;
};

}  // namespace velkarix
