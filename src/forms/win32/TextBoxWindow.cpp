#include "forms/win32/TextBoxWindow.h"

#include <cstddef>
#include <string>

namespace velkarix {

namespace {

DWORD StyleOf(const TextBox::Shape& shape) {
    DWORD style = WS_TABSTOP | ES_AUTOHSCROLL;
    if (shape.readOnly) style |= ES_READONLY;
    if (shape.lines > 1) {
        style = (style & ~static_cast<DWORD>(ES_AUTOHSCROLL)) | ES_MULTILINE | ES_AUTOVSCROLL |
                WS_VSCROLL;
    }
    return style;
}

}  // namespace

TextBoxWindow::TextBoxWindow(DesktopContext& context, TextBox& box, const ControlPlace& place)
    : ControlWindow(context, box, place, {"EDIT", StyleOf(box.BoxShape()), WS_EX_CLIENTEDGE, true}),
      box_(box) {
    Send(EM_LIMITTEXT);  // as much as the system can
    ShowValue();
}

void TextBoxWindow::Changed(Aspect aspect) {
    if (aspect == Aspect::Value) ShowValue();
    // The window's text is the value; the control's text is only spoken.
    if (aspect == Aspect::Text) {
        ShowName();
    } else {
        ControlWindow::Changed(aspect);
    }
}

void TextBoxWindow::ShowValue() {
    showing_ = true;
    SetWindowTextA(Handle(), box_.Value().c_str());
    showing_ = false;
}

void TextBoxWindow::OnCommand(UINT notification) {
    if (notification != EN_CHANGE || showing_) return;
    std::string typed(static_cast<std::size_t>(GetWindowTextLengthA(Handle())) + 1, '\0');
    const int length = GetWindowTextA(Handle(), typed.data(), static_cast<int>(typed.size()));
    typed.resize(static_cast<std::size_t>(length));
    box_.TakeInput(std::move(typed));
}

bool TextBoxWindow::OnEnter() {
    if (box_.BoxShape().readOnly || box_.BoxShape().lines == 1) return false;
    Send(EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>("\r\n"));
    return true;
}

LRESULT TextBoxWindow::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    const LRESULT result = ControlWindow::OnMessage(message, wParam, lParam);
    // A box of several lines would keep Tab and Esc from the form.
    if (message == WM_GETDLGCODE) return result & ~static_cast<LRESULT>(DLGC_WANTALLKEYS);
    return result;
}

}  // namespace velkarix
