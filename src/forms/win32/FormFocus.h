// The keyboard focus inside a top-level form: remembered while the form is inactive, given back
// when it becomes active.
#pragma once

#include "forms/win32/WindowsHeaders.h"

namespace velkarix {

class FormFocus {
  public:
    // Gives the focus to a control, or does so once the form is active.
    void Give(HWND form, HWND control);
    // The form turns inactive.
    void Keep(HWND form);
    // The form itself got the focus and passes it on: to the control that had it last, else to
    // the first that takes it.
    void Restore(HWND form);
    // A page is to go: the focus, if in it, waits in `host` for the next page.
    void Leave(HWND page, HWND host);
    // A page has come: takes the focus when nobody else in the form has it.
    void Enter(HWND form, HWND page, HWND host);

  private:
    HWND remembered_ = nullptr;
};

}  // namespace velkarix
