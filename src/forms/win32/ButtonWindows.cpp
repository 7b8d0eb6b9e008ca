#include "forms/win32/ButtonWindows.h"

namespace velkarix {

void ClickableWindow::OnCommand(UINT notification) {
    if (notification == BN_CLICKED) Model().Raise("Click");
}

CommandButtonWindow::CommandButtonWindow(DesktopContext& context, Button& button,
                                         const ControlPlace& place)
    : ClickableWindow(context, button, place, {"BUTTON", WS_TABSTOP | BS_PUSHBUTTON}) {}

bool CommandButtonWindow::OnEnter() {
    Model().Raise("Click");
    return true;
}

OptionWindow::OptionWindow(DesktopContext& context, OptionButton& option, const ControlPlace& place)
    : ClickableWindow(context, option, place, {"BUTTON", BS_AUTORADIOBUTTON}), option_(option) {
    ShowChoice();
}

void OptionWindow::Changed(Aspect aspect) {
    if (aspect == Aspect::Value) ShowChoice();
    ClickableWindow::Changed(aspect);
}

// The system says click also when an option merely gets the focus.
void OptionWindow::OnCommand(UINT notification) {
    if (!option_.Chosen()) ClickableWindow::OnCommand(notification);
}

void OptionWindow::ShowChoice() const {
    Send(BM_SETCHECK, option_.Chosen() ? BST_CHECKED : BST_UNCHECKED);
}

DrawnButtonWindow::DrawnButtonWindow(DesktopContext& context, Control& control,
                                     const ControlPlace& place)
    : ClickableWindow(context, control, place, {"BUTTON", WS_TABSTOP | BS_OWNERDRAW}) {}

bool DrawnButtonWindow::OnEnter() {
    Model().Raise("Click");
    return true;
}

LRESULT DrawnButtonWindow::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_ERASEBKGND) return TRUE;  // the drawing covers all
    // The second of two quick clicks is a click as well.
    if (message == WM_LBUTTONDBLCLK) message = WM_LBUTTONDOWN;
    return ClickableWindow::OnMessage(message, wParam, lParam);
}

}  // namespace velkarix
