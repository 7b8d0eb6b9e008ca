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
    frame.outside =
        Centred(std::min(width, Width(screen)), std::min(height, Height(screen)), screen, screen);
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
    const RECT screen = WorkArea();
    frame.outside = {0, 0, std::min(Width(least), Width(screen)),
                     std::min(Height(least), Height(screen))};
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
