#include "forms/win32/LinkWindow.h"

#include "forms/win32/Drawing.h"

namespace velkarix {

namespace {

// IDC_HAND, which Windows 95 and NT 4 don't have.
constexpr WORD HandCursor = 32649;

}  // namespace

LinkWindow::LinkWindow(DesktopContext& context, LinkLabel& link, const ControlPlace& place)
    : DrawnButtonWindow(context, link, place) {}

LRESULT LinkWindow::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_SETCURSOR) {
        if (const HCURSOR hand = LoadCursorA(nullptr, MAKEINTRESOURCEA(HandCursor))) {
            SetCursor(hand);
            return TRUE;
        }
    }
    return DrawnButtonWindow::OnMessage(message, wParam, lParam);
}

void LinkWindow::OnDrawItem(const DRAWITEMSTRUCT& item) {
    const OffscreenPaint paint(item.hDC, item.rcItem);
    const Palette& palette = Context().palette;
    FillArea(paint.Context(), item.rcItem, palette.Of(Ground()).ground);
    const bool enabled = (item.itemState & ODS_DISABLED) == 0;
    DrawCaptionText(paint.Context(), Context().fonts.Link(),
                    enabled ? palette.Link(Ground()) : GetSysColor(COLOR_GRAYTEXT), Model().Text(),
                    item.rcItem, DT_CENTER | DT_VCENTER | DT_SINGLELINE);
    if ((item.itemState & ODS_FOCUS) != 0) DrawFocusRect(paint.Context(), &item.rcItem);
}

}  // namespace velkarix
