#include "shell/clsDisableMaximize.h"

#include <cstdint>

namespace velkarix {

void clsDisableMaximize::DisableMaxButton(WindowHandle window) {
    constexpr std::intptr_t NoTopmost = -2;     // HWND_NOTOPMOST
    constexpr std::uint32_t FrameChanged = 39;  // SWP_NOSIZE, NOMOVE, NOZORDER, FRAMECHANGED

    DisableMenuItem(window);
    FixStyle(window);
    // Both make the system draw the frame anew.
    windows_.SetParent(window, windows_.GetParent(window));
    windows_.SetWindowPos(window, NoTopmost, 0, 0, 0, 0, FrameChanged);
}

void clsDisableMaximize::DisableMenuItem(WindowHandle window) {
    constexpr std::uint32_t Maximize = 61488;  // SC_MAXIMIZE
    constexpr auto OwnNumber = static_cast<std::uint32_t>(-11);
    constexpr std::uint32_t MaskState = 1;
    constexpr std::uint32_t MaskId = 2;
    constexpr std::uint32_t GreyedAndDisabled = 3;
    constexpr std::uint32_t NonClientActivate = 134;  // WM_NCACTIVATE

    const MenuHandle menu = windows_.GetSystemMenu(window, false);
    MenuItemInfo item{MaskState, 0, 0};
    if (!windows_.GetMenuItemInfoA(menu, Maximize, item)) return;
    // The system enables this item again by its number, so it gets one that nobody looks for.
    windows_.SetMenuItemInfoA(menu, Maximize, {MaskId, 0, OwnNumber});
    windows_.SetMenuItemInfoA(menu, OwnNumber, {MaskState, item.state | GreyedAndDisabled, 0});
    windows_.SendMessageA(window, NonClientActivate, static_cast<std::uintptr_t>(-1), 0);
}

void clsDisableMaximize::FixStyle(WindowHandle window) {
    constexpr int Style = -16;                              // GWL_STYLE
    constexpr std::int32_t MaximizeBoxAndBorder = 0x50000;  // WS_MAXIMIZEBOX, WS_THICKFRAME

    const std::int32_t style = windows_.GetWindowLongA(window, Style);
    windows_.SetWindowLongA(window, Style, style & ~MaximizeBoxAndBorder);
}

}  // namespace velkarix
