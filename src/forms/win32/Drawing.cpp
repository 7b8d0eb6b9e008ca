#include "forms/win32/Drawing.h"

namespace velkarix {

OffscreenPaint::OffscreenPaint(HDC target, const RECT& area)
    : target_(target),
      area_(area),
      context_(CreateCompatibleDC(target)),
      bitmap_(CreateCompatibleBitmap(target, area.right - area.left, area.bottom - area.top)),
      former_(SelectObject(context_, bitmap_.get())) {
    SetViewportOrgEx(context_, -area.left, -area.top, nullptr);
}

OffscreenPaint::~OffscreenPaint() {
    BitBlt(target_, area_.left, area_.top, area_.right - area_.left, area_.bottom - area_.top,
           context_, area_.left, area_.top, SRCCOPY);
    SelectObject(context_, former_);
    DeleteDC(context_);
}

void FillArea(HDC context, const RECT& area, COLORREF colour) {
    const COLORREF former = SetBkColor(context, colour);
    ExtTextOutA(context, 0, 0, ETO_OPAQUE, &area, nullptr, 0, nullptr);
    SetBkColor(context, former);
}

void DrawCaptionText(HDC context, HFONT font, COLORREF colour, const std::string& caption,
                     RECT area, UINT format) {
    const Selection selection(context, font);
    const int formerMode = SetBkMode(context, TRANSPARENT);
    const COLORREF formerColour = SetTextColor(context, colour);
    DrawTextA(context, caption.c_str(), -1, &area, format);
    SetTextColor(context, formerColour);
    SetBkMode(context, formerMode);
}

void DrawSquareIcon(HDC context, HICON icon, int x, int y, int size, bool enabled) {
    if (icon == nullptr) return;
    if (enabled) {
        DrawIconEx(context, x, y, icon, size, size, 0, nullptr, DI_NORMAL);
    } else {
        DrawStateA(context, nullptr, nullptr, reinterpret_cast<LPARAM>(icon), 0, x, y, size, size,
                   DST_ICON | DSS_DISABLED);
    }
}

}  // namespace velkarix
