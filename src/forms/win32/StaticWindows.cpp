#include "forms/win32/StaticWindows.h"

#include "forms/win32/Drawing.h"
#include "forms/win32/Icons.h"

namespace velkarix {

LabelWindow::LabelWindow(DesktopContext& context, Label& label, const ControlPlace& place)
    : ControlWindow(context, label, place, {"STATIC", SS_LEFT | SS_NOPREFIX}), label_(label) {
    LabelWindow::FontsChanged();
}

void LabelWindow::FontsChanged() {
    const Fonts& fonts = Context().fonts;
    const bool title = label_.LabelLook() == Label::Look::Title;
    Send(WM_SETFONT, reinterpret_cast<WPARAM>(title ? fonts.Title() : fonts.Dialog()));
}

FrameWindow::FrameWindow(DesktopContext& context, Frame& frame, const ControlPlace& place)
    : ControlWindow(context, frame, place, {"BUTTON", BS_GROUPBOX}) {}

LRESULT FrameWindow::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_ERASEBKGND) {
        // The native frame leaves its inside to the window under it, which is clipped here.
        FillArea(reinterpret_cast<HDC>(wParam), ClientArea(),
                 Context().palette.Of(Ground()).ground);
        return TRUE;
    }
    return ControlWindow::OnMessage(message, wParam, lParam);
}

PictureWindow::PictureWindow(DesktopContext& context, PictureBox& box, const ControlPlace& place)
    : ControlWindow(context, box, place, {"STATIC", SS_OWNERDRAW}), box_(box) {
    LoadIcon();
}

void PictureWindow::LoadIcon() {
    icon_ = box_.OwnPicture() ? PictureIcon(*box_.OwnPicture(), PictureSize())
                              : StockIcon(Context().instance, box_.StockPicture(), PictureSize());
}

void PictureWindow::Changed(Aspect aspect) {
    if (aspect == Aspect::Look) {
        LoadIcon();
        InvalidateRect(Handle(), nullptr, FALSE);
    }
    ControlWindow::Changed(aspect);
}

void PictureWindow::OnDrawItem(const DRAWITEMSTRUCT& item) {
    const OffscreenPaint paint(item.hDC, item.rcItem);
    FillArea(paint.Context(), item.rcItem, Context().palette.Of(Ground()).ground);
    DrawSquareIcon(paint.Context(), icon_.get(), item.rcItem.left, item.rcItem.top, PictureSize(),
                   true);
}

}  // namespace velkarix
