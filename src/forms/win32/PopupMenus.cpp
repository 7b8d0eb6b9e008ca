#include "forms/win32/PopupMenus.h"

#include <cstddef>

#include "forms/win32/Handles.h"

namespace velkarix {

namespace {

// The command numbers are the places of the entries, from 1.
OwnedMenu NativeMenu(const Menu& menu) {
    OwnedMenu native(CreatePopupMenu());
    UINT_PTR command = 0;
    for (const MenuEntry& entry : menu.entries) {
        ++command;
        if (entry.IsSeparator()) {
            AppendMenuA(native.get(), MF_SEPARATOR, 0, nullptr);
        } else {
            const UINT state = entry.enabled ? MF_ENABLED : MF_GRAYED;
            AppendMenuA(native.get(), MF_STRING | state, command, entry.caption.c_str());
        }
    }
    return native;
}

}  // namespace

std::optional<std::string> TrackPopup(HWND owner, const Menu& menu, POINT point) {
    const OwnedMenu native = NativeMenu(menu);
    // Without these two a click elsewhere wouldn't close the popup.
    SetForegroundWindow(owner);
    const int command = TrackPopupMenu(native.get(), TPM_RETURNCMD | TPM_RIGHTBUTTON, point.x,
                                       point.y, 0, owner, nullptr);
    PostMessageA(owner, WM_NULL, 0, 0);
    if (command == 0) return std::nullopt;
    return menu.entries.at(static_cast<std::size_t>(command) - 1).name;
}

}  // namespace velkarix
