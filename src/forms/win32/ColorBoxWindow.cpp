#include "forms/win32/ColorBoxWindow.h"

#include "forms/win32/Drawing.h"

namespace velkarix {

ColorBoxWindow::ColorBoxWindow(DesktopContext& context, ColorBox& box, const ControlPlace& place)
    : ControlWindow(context, box, place, {"BUTTON", WS_TABSTOP | BS_OWNERDRAW}), box_(box) {}

void ColorBoxWindow::Changed(Aspect aspect) {
    if (aspect == Aspect::Look) InvalidateRect(Handle(), nullptr, FALSE);
    ControlWindow::Changed(aspect);
}

LRESULT ColorBoxWindow::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_ERASEBKGND) return TRUE;  // the drawing covers all
    if (message == WM_KEYUP || message == WM_LBUTTONUP) keyReleased_ = message == WM_KEYUP;
    return ControlWindow::OnMessage(message, wParam, lParam);
}

void ColorBoxWindow::OnCommand(UINT notification) {
    const bool bySpace = notification == BN_CLICKED && keyReleased_;
    if (bySpace || notification == BN_DOUBLECLICKED) Model().Raise("DblClick");
}

bool ColorBoxWindow::OnEnter() {
    Model().Raise("DblClick");
    return true;
}

void ColorBoxWindow::OnDrawItem(const DRAWITEMSTRUCT& item) {
    const OffscreenPaint paint(item.hDC, item.rcItem);
    FillArea(paint.Context(), item.rcItem, Context().palette.Of(Ground()).ground);
    // The mark of the focus stands around the edge: on some colours it couldn't be seen.
    if ((item.itemState & ODS_FOCUS) != 0) DrawFocusRect(paint.Context(), &item.rcItem);
    RECT inside = item.rcItem;
    InflateRect(&inside, -2, -2);
    DrawEdge(paint.Context(), &inside, EDGE_SUNKEN, BF_RECT | BF_ADJUST);
    FillArea(paint.Context(), inside, box_.BoxColor());
}

}  // namespace velkarix
