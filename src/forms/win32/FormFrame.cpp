#include "forms/win32/FormFrame.h"

#include <algorithm>

#include "forms/win32/Screen.h"

namespace velkarix {

namespace {

// Small enough for a screen of 800 by 600 with its task bar.
constexpr int MainWidthAt96 = 780;
constexpr int MainHeightAt96 = 540;

// A rectangle of that size in the middle of `around`, kept inside `limits`.
RECT Centred(LONG width, LONG height, const RECT& around, const RECT& limits) {
    LONG left = around.left + (Width(around) - width) / 2;
    LONG top = around.top + (Height(around) - height) / 2;
    left = std::max(limits.left, std::min(left, limits.right - width));
    top = std::max(limits.top, std::min(top, limits.bottom - height));
    return {left, top, left + width, top + height};
}

// As much of an outer size as fits the screen; where one way is cut, the other has room for the
// bar that scrolls it.
SIZE OnScreen(LONG width, LONG height, const RECT& screen) {
    const LONG bar = height > Height(screen) ? GetSystemMetrics(SM_CXVSCROLL) : 0;
    const LONG levelBar = width > Width(screen) ? GetSystemMetrics(SM_CYHSCROLL) : 0;
    return {std::min(width + bar, Width(screen)), std::min(height + levelBar, Height(screen))};
}

// The outer size at which the whole layout is seen.
RECT MinimumOutside(const Form& form, const FormFrame& frame, DesktopContext& context) {
    const Size layout = MinimumSize(form.FormLayout(), context.metrics);
    const Insets margins = context.metrics.FormMargins(form.Kind());
    RECT outside{0, 0, layout.width + margins.left + margins.right,
                 layout.height + margins.top + margins.bottom};
    AdjustWindowRectEx(&outside, frame.style, FALSE, frame.extendedStyle);
    return outside;
}

FormFrame MainFrame(const Form& form, DesktopContext& context) {
    FormFrame frame{WS_OVERLAPPEDWINDOW, WS_EX_APPWINDOW, {}};
    const RECT least = MinimumOutside(form, frame, context);
    const RECT screen = WorkArea();
    const LONG width = std::max<LONG>(context.metrics.InLetters(MainWidthAt96), Width(least));
    const LONG height = std::max<LONG>(context.metrics.InLetters(MainHeightAt96), Height(least));
    const SIZE size = OnScreen(width, height, screen);
    frame.outside = Centred(size.cx, size.cy, screen, screen);
    return frame;
}

FormFrame PageFrame(HWND host) {
    FormFrame frame{WS_CHILD | WS_CLIPSIBLINGS, 0, {}};
    GetClientRect(host, &frame.outside);
    return frame;
}

FormFrame DialogFrame(const Form& form, DesktopContext& context) {
    FormFrame frame{WS_POPUP | WS_CAPTION | WS_SYSMENU, WS_EX_DLGMODALFRAME, {}};
    const RECT least = MinimumOutside(form, frame, context);
    const SIZE size = OnScreen(Width(least), Height(least), WorkArea());
    frame.outside = {0, 0, size.cx, size.cy};
    return frame;
}

}  // namespace

FormFrame FrameOf(const Form& form, HWND parent, DesktopContext& context) {
    FormFrame frame = form.Kind() == FormKind::Main   ? MainFrame(form, context)
                      : form.Kind() == FormKind::Page ? PageFrame(parent)
                                                      : DialogFrame(form, context);
    frame.style |= WS_CLIPCHILDREN;
    frame.extendedStyle |= WS_EX_CONTROLPARENT;
    return frame;
}

void FitFrame(HWND window, const Form& form, DesktopContext& context) {
    if (form.Kind() == FormKind::Page || IsIconic(window) != FALSE) return;
    const RECT outside = FrameOf(form, nullptr, context).outside;
    RECT former{};
    GetWindowRect(window, &former);
    if (Width(outside) == Width(former) && Height(outside) == Height(former)) return;
    const RECT place = Centred(Width(outside), Height(outside), former, WorkArea());
    SetWindowPos(window, nullptr, place.left, place.top, Width(place), Height(place),
                 SWP_NOZORDER | SWP_NOACTIVATE);
}

void CentreOver(HWND window, HWND other) {
    RECT area{};
    GetWindowRect(window, &area);
    RECT around = WorkArea();
    if (IsWindowVisible(other) != FALSE && IsIconic(other) == FALSE) GetWindowRect(other, &around);
    const RECT place = Centred(Width(area), Height(area), around, WorkArea());
    SetWindowPos(window, nullptr, place.left, place.top, 0, 0,
                 SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

}  // namespace velkarix
