// Small acts of drawing that the program's own looks are made of.
#pragma once

#include <string>

#include "forms/win32/Handles.h"

namespace velkarix {

// Draws off screen, and shows the whole at the end of its scope: no flicker.
class OffscreenPaint {
  public:
    // `area` in the coordinates of `target`, which are those of Context() too.
    OffscreenPaint(HDC target, const RECT& area);
    ~OffscreenPaint();
    OffscreenPaint(const OffscreenPaint&) = delete;
    OffscreenPaint& operator=(const OffscreenPaint&) = delete;
    HDC Context() const { return context_; }

  private:
    HDC target_;
    RECT area_;
    HDC context_;
    OwnedBitmap bitmap_;
    HGDIOBJ former_;
};

// Fills without a brush of its own.
void FillArea(HDC context, const RECT& area, COLORREF colour);
// Draws a caption, "&" being the mark of its access key. `format` are the flags of DrawTextA.
void DrawCaptionText(HDC context, HFONT font, COLORREF colour, const std::string& caption,
                     RECT area, UINT format);
// Draws a square icon of `size` pixels; a disabled one is grey. Null draws nothing.
void DrawSquareIcon(HDC context, HICON icon, int x, int y, int size, bool enabled);

}  // namespace velkarix
