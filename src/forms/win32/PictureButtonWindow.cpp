#include "forms/win32/PictureButtonWindow.h"

#include "forms/win32/CommonControls.h"
#include "forms/win32/Drawing.h"
#include "forms/win32/Icons.h"

namespace velkarix {

PictureButtonWindow::PictureButtonWindow(DesktopContext& context, Button& button,
                                         const ControlPlace& place)
    : DrawnButtonWindow(context, button, place), button_(button) {
    LoadIcon();
}

void PictureButtonWindow::LoadIcon() {
    icon_ = StockIcon(Context().instance, button_.SkinElement(), PictureSize());
}

void PictureButtonWindow::Changed(Aspect aspect) {
    if (aspect == Aspect::Look) {
        LoadIcon();
        InvalidateRect(Handle(), nullptr, FALSE);
    }
    DrawnButtonWindow::Changed(aspect);
}

LRESULT PictureButtonWindow::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_MOUSEMOVE && !hot_) SetHot(AskForMouseLeave(Handle()));
    if (message == WM_MOUSELEAVE) SetHot(false);
    return DrawnButtonWindow::OnMessage(message, wParam, lParam);
}

void PictureButtonWindow::SetHot(bool hot) {
    if (hot == hot_) return;
    hot_ = hot;
    InvalidateRect(Handle(), nullptr, FALSE);
}

Shade PictureButtonWindow::ShadeFor(UINT state) const {
    if ((state & ODS_DISABLED) != 0) return Ground();
    if ((state & ODS_SELECTED) != 0) return Shade::Pushed;
    if (button_.Pressed()) return Shade::Current;
    return hot_ ? Shade::Hot : Ground();
}

void PictureButtonWindow::OnDrawItem(const DRAWITEMSTRUCT& item) {
    const OffscreenPaint paint(item.hDC, item.rcItem);
    const Palette& palette = Context().palette;
    const Ink& ink = palette.Of(ShadeFor(item.itemState));
    FillArea(paint.Context(), item.rcItem, ink.ground);
    if (button_.Pressed()) {
        RECT mark = item.rcItem;
        mark.right = mark.left + Context().metrics.MarkWidth();
        FillArea(paint.Context(), mark, palette.Of(Shade::Accent).ground);
    }

    const int padding = Context().metrics.ButtonPadding();
    const int size = PictureSize();
    const bool enabled = (item.itemState & ODS_DISABLED) == 0;
    const int left = (item.rcItem.left + item.rcItem.right - size) / 2;
    DrawSquareIcon(paint.Context(), icon_.get(), left, item.rcItem.top + padding, size, enabled);
    RECT caption = item.rcItem;
    caption.top += size + 2 * padding;
    DrawCaptionText(paint.Context(), Context().fonts.Dialog(),
                    enabled ? ink.text : GetSysColor(COLOR_GRAYTEXT), button_.Text(), caption,
                    DT_CENTER | DT_SINGLELINE);

    if ((item.itemState & ODS_FOCUS) != 0) {
        RECT inside = item.rcItem;
        InflateRect(&inside, -2, -2);
        DrawFocusRect(paint.Context(), &inside);
    }
}

}  // namespace velkarix
