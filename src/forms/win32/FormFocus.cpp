#include "forms/win32/FormFocus.h"

#include "forms/win32/WindowTree.h"

namespace velkarix {

void FormFocus::Give(HWND form, HWND control) {
    remembered_ = control;
    if (GetActiveWindow() != form) return;
    SetFocus(control);
    // As Tab does: what is typed into a box takes the place of what stands there.
    const LRESULT code = SendMessageA(control, WM_GETDLGCODE, 0, 0);
    if ((code & DLGC_HASSETSEL) != 0) SendMessageA(control, EM_SETSEL, 0, -1);
}

void FormFocus::Keep(HWND form) {
    const HWND focus = GetFocus();
    if (focus != nullptr && IsChild(form, focus) != FALSE) remembered_ = focus;
}

void FormFocus::Restore(HWND form) {
    // The form itself may be about to be shown.
    const bool usable = IsShownIn(form, remembered_) && IsWindowEnabled(remembered_) != FALSE;
    const HWND next = usable ? remembered_ : GetNextDlgTabItem(form, nullptr, FALSE);
    if (next != nullptr) SetFocus(next);
}

void FormFocus::Leave(HWND page, HWND host) {
    if (remembered_ != nullptr && IsWithin(page, remembered_)) remembered_ = nullptr;
    const HWND focus = GetFocus();
    if (focus != nullptr && IsWithin(page, focus)) SetFocus(host);
}

void FormFocus::Enter(HWND form, HWND page, HWND host) {
    // Until the form is shown, nobody has chosen where the focus is.
    const bool inUse = GetActiveWindow() == form && IsWindowVisible(form) != FALSE;
    const bool vacant = inUse ? GetFocus() == host : remembered_ == nullptr;
    if (!vacant) return;
    if (const HWND first = GetNextDlgTabItem(page, nullptr, FALSE)) Give(form, first);
}

}  // namespace velkarix
