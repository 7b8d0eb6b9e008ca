#include "forms/win32/AreaWindows.h"

#include "forms/win32/Drawing.h"
#include "forms/win32/WindowClasses.h"

namespace velkarix {

PanelWindow::PanelWindow(DesktopContext& context, Panel& panel, const ControlPlace& place)
    : ControlWindow(context, panel, place, {AreaClass, 0}), panel_(panel) {}

Shade PanelWindow::ShadeOf(Panel::Look look) {
    switch (look) {
        case Panel::Look::Banner:
            return Shade::Banner;
        case Panel::Look::Strip:
            return Shade::Strip;
        case Panel::Look::Plain:
        case Panel::Look::Drawer:
            break;
    }
    return Shade::Face;
}

void PanelWindow::Changed(Aspect aspect) {
    ControlWindow::Changed(aspect);
    const bool drawer = panel_.PanelLook() == Panel::Look::Drawer;
    if (drawer && aspect == Aspect::Visible)
        SendMessageA(GetParent(Handle()), RearrangeMessage, 0, 0);
}
LRESULT PanelWindow::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_ERASEBKGND) return TRUE;  // the drawing covers all
    if (message == WM_PAINT) {
        PAINTSTRUCT paint{};
        Paint(BeginPaint(Handle(), &paint));
        EndPaint(Handle(), &paint);
        return 0;
    }
    return ControlWindow::OnMessage(message, wParam, lParam);
}

void PanelWindow::Paint(HDC target) {
    const RECT area = ClientArea();
    const OffscreenPaint paint(target, area);
    const Palette& palette = Context().palette;
    FillArea(paint.Context(), area, palette.Of(ShadeOf(panel_.PanelLook())).ground);
    if (panel_.PanelLook() != Panel::Look::Banner) return;
    RECT line = area;
    line.top = line.bottom - Context().metrics.BannerLine();
    FillArea(paint.Context(), line, palette.Of(Shade::Accent).ground);
}

PageHostWindow::PageHostWindow(DesktopContext& context, PageHost& host, const ControlPlace& place)
    : ControlWindow(context, host, place, {AreaClass, WS_CLIPCHILDREN, WS_EX_CONTROLPARENT}) {}

LRESULT PageHostWindow::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_SIZE) {
        for (HWND page = GetWindow(Handle(), GW_CHILD); page != nullptr;
             page = GetWindow(page, GW_HWNDNEXT)) {
            SetWindowPos(page, nullptr, 0, 0, LOWORD(lParam), HIWORD(lParam),
                         SWP_NOZORDER | SWP_NOACTIVATE);
        }
    }
    return ControlWindow::OnMessage(message, wParam, lParam);
}

}  // namespace velkarix
