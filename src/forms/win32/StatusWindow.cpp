#include "forms/win32/StatusWindow.h"

#include "forms/win32/Drawing.h"

namespace velkarix {

StatusWindow::StatusWindow(DesktopContext& context, Label& label, const ControlPlace& place)
    : ControlWindow(context, label, place, {"STATIC", SS_OWNERDRAW}) {}

void StatusWindow::Detach() {
    Context().pending.Remove(*this);
    ControlWindow::Detach();
}

void StatusWindow::Changed(Aspect aspect) {
    switch (aspect) {
        case Aspect::Text:
            Context().pending.Add(*this);
            return;
        case Aspect::Now:
            Context().pending.Remove(*this);
            Refresh();
            break;
        default:
            break;
    }
    ControlWindow::Changed(aspect);
}

// Readers of the screen take the window's text.
void StatusWindow::Refresh() {
    SetWindowTextA(Handle(), Model().Text().c_str());
    InvalidateRect(Handle(), nullptr, FALSE);
}

void StatusWindow::OnDrawItem(const DRAWITEMSTRUCT& item) {
    const OffscreenPaint paint(item.hDC, item.rcItem);
    const Ink& ink = Context().palette.Of(Ground());
    FillArea(paint.Context(), item.rcItem, ink.ground);
    DrawCaptionText(paint.Context(), Context().fonts.Dialog(), ink.text, Model().Text(),
                    item.rcItem,
                    DT_LEFT | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX | DT_END_ELLIPSIS);
}

}  // namespace velkarix
