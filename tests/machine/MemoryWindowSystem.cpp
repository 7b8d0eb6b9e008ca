#include "tests/machine/MemoryWindowSystem.h"

#include <algorithm>
#include <utility>

#include "tests/machine/CaseFold.h"

namespace velkarix {
namespace {

constexpr int styleIndex = -16;
constexpr int extendedStyleIndex = -20;
constexpr std::int32_t overlappedWindowStyle = 0x00CF0000;
constexpr std::uint32_t systemCommands[] = {0xF120, 0xF010, 0xF000, 0xF020, 0xF030, 0xF060};
constexpr std::uint32_t maskState = 1;
constexpr std::uint32_t maskId = 2;
constexpr std::uint32_t relationNext = 2;
constexpr std::uint32_t relationPrevious = 3;
constexpr int hideCommand = 0;
// A window's system menu has a handle of its own, made from the window's.
constexpr MenuHandle menuOffset = 0x100000;

}  // namespace

MemoryWindow& MemoryWindowSystem::Add(const std::string& windowClass, const std::string& caption) {
    nextWindow_ += 2;
    MemoryWindow window;
    window.handle = nextWindow_;
    window.windowClass = windowClass;
    window.caption = caption;
    window.longs = {{styleIndex, overlappedWindowStyle}, {extendedStyleIndex, 0}};
    for (const std::uint32_t command : systemCommands) {
        window.menuItems.push_back({maskState | maskId, 0, command});
    }
    order_.insert(order_.begin(), window.handle);
    return windows_[window.handle] = window;
}

MemoryWindow* MemoryWindowSystem::Find(WindowHandle handle) {
    const auto found = windows_.find(handle);
    return found == windows_.end() ? nullptr : &found->second;
}

bool MemoryWindowSystem::CreateMutexA(const std::string& name) {
    if (journal_.Enter("CreateMutexA", name)) {
        return false;
    }
    return !mutexes_.insert(name).second;
}

WindowHandle MemoryWindowSystem::FindWindowA(const std::string& windowClass,
                                             const std::string& caption) {
    if (journal_.Enter("FindWindowA", windowClass + ", " + caption)) {
        return 0;
    }
    for (const WindowHandle handle : order_) {
        const MemoryWindow& window = windows_[handle];
        if (SameName(window.windowClass, windowClass) && SameName(window.caption, caption)) {
            return handle;
        }
    }
    return 0;
}

WindowHandle MemoryWindowSystem::GetWindow(WindowHandle window, std::uint32_t relation) {
    const bool fails = journal_.Enter("GetWindow", std::to_string(relation)) != error::Success;
    const auto place = std::find(order_.begin(), order_.end(), window);
    if (fails || place == order_.end()) {
        return 0;
    }
    switch (relation) {
        case relationNext:
            return place + 1 == order_.end() ? 0 : *(place + 1);
        case relationPrevious:
            return place == order_.begin() ? 0 : *(place - 1);
        default:
            return 0;
    }
}

bool MemoryWindowSystem::ShowWindow(WindowHandle window, int showCommand) {
    const bool fails = journal_.Enter("ShowWindow", std::to_string(showCommand)) != error::Success;
    MemoryWindow* found = Find(window);
    if (fails || found == nullptr) {
        return false;
    }
    const bool wasVisible = found->visible;
    found->visible = showCommand != hideCommand;
    return wasVisible;
}

bool MemoryWindowSystem::OpenIcon(WindowHandle window) {
    const bool fails = journal_.Enter("OpenIcon") != error::Success;
    MemoryWindow* found = Find(window);
    if (fails || found == nullptr) {
        return false;
    }
    found->minimised = false;
    return true;
}

bool MemoryWindowSystem::SetForegroundWindow(WindowHandle window) {
    if (journal_.Enter("SetForegroundWindow") || Find(window) == nullptr) {
        return false;
    }
    foreground_ = window;
    return true;
}

MenuHandle MemoryWindowSystem::GetSystemMenu(WindowHandle window, bool revert) {
    const bool fails = journal_.Enter("GetSystemMenu", revert ? "revert" : "") != error::Success;
    return fails || Find(window) == nullptr ? 0 : window + menuOffset;
}

MenuItemInfo* MemoryWindowSystem::FindMenuItem(MenuHandle menu, std::uint32_t item) {
    MemoryWindow* window = Find(menu - menuOffset);
    if (window == nullptr) {
        return nullptr;
    }
    const auto found =
        std::find_if(window->menuItems.begin(), window->menuItems.end(),
                     [&](const MenuItemInfo& candidate) { return candidate.id == item; });
    return found == window->menuItems.end() ? nullptr : &*found;
}

bool MemoryWindowSystem::GetMenuItemInfoA(MenuHandle menu, std::uint32_t item, MenuItemInfo& info) {
    const bool fails = journal_.Enter("GetMenuItemInfoA", std::to_string(item)) != error::Success;
    const MenuItemInfo* found = FindMenuItem(menu, item);
    if (fails || found == nullptr) {
        return false;
    }
    info.state = (info.mask & maskState) != 0 ? found->state : info.state;
    info.id = (info.mask & maskId) != 0 ? found->id : info.id;
    return true;
}

bool MemoryWindowSystem::SetMenuItemInfoA(MenuHandle menu, std::uint32_t item,
                                          const MenuItemInfo& info) {
    const bool fails = journal_.Enter("SetMenuItemInfoA", std::to_string(item)) != error::Success;
    MenuItemInfo* found = FindMenuItem(menu, item);
    if (fails || found == nullptr) {
        return false;
    }
    found->state = (info.mask & maskState) != 0 ? info.state : found->state;
    found->id = (info.mask & maskId) != 0 ? info.id : found->id;
    return true;
}

std::int32_t MemoryWindowSystem::GetWindowLongA(WindowHandle window, int index) {
    const bool fails = journal_.Enter("GetWindowLongA", std::to_string(index)) != error::Success;
    MemoryWindow* found = Find(window);
    return fails || found == nullptr ? 0 : found->longs[index];
}

std::int32_t MemoryWindowSystem::SetWindowLongA(WindowHandle window, int index,
                                                std::int32_t value) {
    const bool fails =
        journal_.Enter("SetWindowLongA", std::to_string(index) + ", " + std::to_string(value)) !=
        error::Success;
    MemoryWindow* found = Find(window);
    return fails || found == nullptr ? 0 : std::exchange(found->longs[index], value);
}

bool MemoryWindowSystem::SetWindowPos(WindowHandle window, std::intptr_t insertAfter, int x, int y,
                                      int width, int height, std::uint32_t flags) {
    const bool fails = journal_.Enter("SetWindowPos", std::to_string(insertAfter) + ", " +
                                                          std::to_string(flags)) != error::Success;
    MemoryWindow* found = Find(window);
    if (fails || found == nullptr) {
        return false;
    }
    found->placings.push_back({insertAfter, x, y, width, height, flags});
    return true;
}

WindowHandle MemoryWindowSystem::GetParent(WindowHandle window) {
    const bool fails = journal_.Enter("GetParent") != error::Success;
    const MemoryWindow* found = Find(window);
    return fails || found == nullptr ? 0 : found->parent;
}

WindowHandle MemoryWindowSystem::SetParent(WindowHandle window, WindowHandle parent) {
    const bool fails = journal_.Enter("SetParent") != error::Success;
    MemoryWindow* found = Find(window);
    return fails || found == nullptr ? 0 : std::exchange(found->parent, parent);
}

std::intptr_t MemoryWindowSystem::SendMessageA(WindowHandle window, std::uint32_t message,
                                               std::uintptr_t wParam, std::intptr_t lParam) {
    const bool fails = journal_.Enter("SendMessageA", std::to_string(message)) != error::Success;
    MemoryWindow* found = Find(window);
    if (fails || found == nullptr) {
        return 0;
    }
    found->messages.push_back({message, wParam, lParam});
    return 1;
}

}  // namespace velkarix
