// The scroll bars of a form whose layout needs more room than its window has: on a small screen,
// or with large letters, nothing is cut and nothing is out of reach.
#pragma once

#include "forms/Layout.h"
#include "forms/win32/WindowsHeaders.h"

namespace velkarix {

class FormScroll {
  public:
    // Shows the bars that a window needs for a layout of at least that size, and no others. The
    // place of the layout in the window, which begins outside of it once it is scrolled.
    Rect PlaceFor(HWND window, const Size& least);
    // The rest are gestures of the user; each is true when the layout's place is another now.
    // `message` is WM_HSCROLL or WM_VSCROLL, with its first argument.
    bool OnScroll(HWND window, UINT message, WPARAM wParam);
    // The argument of WM_MOUSEWHEEL.
    bool OnWheel(HWND window, WPARAM wParam);
    // A control that got the focus comes into sight.
    bool Reveal(HWND window, HWND control);
    // A bar that comes or goes changes the inside of the window, which needs no answer.
    bool Fitting() const { return fitting_; }

  private:
    bool MoveTo(HWND window, int bar, int position);

    bool fitting_ = false;
};

}  // namespace velkarix
