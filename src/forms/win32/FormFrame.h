// The outside of a form's window: style, size and place for each kind of form.
#pragma once

#include "forms/Form.h"
#include "forms/win32/DesktopContext.h"

namespace velkarix {

struct FormFrame {
    DWORD style = 0;
    DWORD extendedStyle = 0;
    RECT outside{};  // in screen coordinates; of a page in those of its host
};

// `parent` is the host of a page and the owner of another form.
FormFrame FrameOf(const Form& form, HWND parent, DesktopContext& context);

// Gives a form's window the size that its texts need now, about the same middle: its form may have
// set some as it loaded, or the fonts are others. A page has what room its host gives.
void FitFrame(HWND window, const Form& form, DesktopContext& context);

// Moves a window over the middle of another, or of the screen when that isn't shown; not beyond
// the edges of the screen.
void CentreOver(HWND window, HWND other);

}  // namespace velkarix
