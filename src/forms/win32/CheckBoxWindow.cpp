#include "forms/win32/CheckBoxWindow.h"

namespace velkarix {

// Not the kind that turns its mark by itself: the model alone says what is marked.
CheckBoxWindow::CheckBoxWindow(DesktopContext& context, CheckBox& box, const ControlPlace& place)
    : ClickableWindow(context, box, place, {"BUTTON", WS_TABSTOP | BS_CHECKBOX}), box_(box) {
    ShowMark();
}

void CheckBoxWindow::Changed(Aspect aspect) {
    if (aspect == Aspect::Value) ShowMark();
    ClickableWindow::Changed(aspect);
}

void CheckBoxWindow::ShowMark() const {
    Send(BM_SETCHECK, box_.Checked() ? BST_CHECKED : BST_UNCHECKED);
}

}  // namespace velkarix
