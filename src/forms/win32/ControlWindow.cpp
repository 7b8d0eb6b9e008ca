#include "forms/win32/ControlWindow.h"

#include <cstdint>

#include "forms/win32/WindowName.h"
#include "forms/win32/WindowTree.h"

namespace velkarix {

ControlWindow::ControlWindow(DesktopContext& context, Control& model, const ControlPlace& place,
                             const NativeKind& kind)
    : context_(context),
      model_(model),
      ground_(place.ground),
      nameLabel_(kind.namedByLabel ? MakeNameLabel(place) : nullptr) {
    DWORD style = WS_CHILD | WS_CLIPSIBLINGS | kind.style;
    if (place.startsGroup) style |= WS_GROUP;
    if (model.Shown()) style |= WS_VISIBLE;
    if (!model.Enabled()) style |= WS_DISABLED;
    handle_ = CreateWindowExA(kind.extendedStyle, kind.windowClass, model.Text().c_str(), style,
                              place.area.x, place.area.y, place.area.width, place.area.height,
                              place.parent, reinterpret_cast<HMENU>(std::intptr_t{place.id}),
                              context.instance, nullptr);
    native_ = reinterpret_cast<WNDPROC>(GetWindowLongPtrA(handle_, GWLP_WNDPROC));
    SetWindowLongPtrA(handle_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    SetWindowLongPtrA(handle_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(Procedure));
    SetWindowName(handle_, model.Name());
    Send(WM_SETFONT, reinterpret_cast<WPARAM>(context.fonts.Dialog()));
    if (!model.ToolTip().empty()) toolTip_.emplace(context.instance, handle_, model.ToolTip());
    model.AttachView(this);
}

// Never shown: it is looked for just before the control, and needn't be visible.
HWND ControlWindow::MakeNameLabel(const ControlPlace& place) const {
    return CreateWindowExA(0, "STATIC", model_.Text().c_str(), WS_CHILD | SS_LEFT | SS_NOPREFIX, 0,
                           0, 0, 0, place.parent, nullptr, context_.instance, nullptr);
}

void ControlWindow::ShowName() const {
    if (nameLabel_ != nullptr) SetWindowTextA(nameLabel_, model_.Text().c_str());
}

void ControlWindow::Detach() {
    model_.AttachView(nullptr);
    context_.visibility.Forget(handle_);
    RemoveWindowName(handle_);
    SetWindowLongPtrA(handle_, GWLP_USERDATA, 0);
    SetWindowLongPtrA(handle_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(native_));
}

ControlWindow* ControlWindow::From(HWND window) {
    const auto procedure = reinterpret_cast<WNDPROC>(GetWindowLongPtrA(window, GWLP_WNDPROC));
    if (procedure != Procedure) return nullptr;
    return reinterpret_cast<ControlWindow*>(GetWindowLongPtrA(window, GWLP_USERDATA));
}

LRESULT CALLBACK ControlWindow::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    auto* self = reinterpret_cast<ControlWindow*>(GetWindowLongPtrA(window, GWLP_USERDATA));
    const ProcedureScope scope(self->context_);
    if (self->toolTip_) self->toolTip_->Relay(message, wParam, lParam);
    // What is clicked isn't moved away from under the mouse.
    if (message == WM_SETFOCUS && GetKeyState(VK_LBUTTON) >= 0) {
        SendMessageA(GetParent(window), RevealMessage, 0, reinterpret_cast<LPARAM>(window));
    }
    return self->OnMessage(message, wParam, lParam);
}

LRESULT ControlWindow::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    return CallWindowProcA(native_, handle_, message, wParam, lParam);
}

HBRUSH ControlWindow::OnColour(HDC context) {
    if (ground_ == Shade::Face) return nullptr;
    const Ink& ink = context_.palette.Of(ground_);
    SetTextColor(context, ink.text);
    SetBkColor(context, ink.ground);
    return context_.palette.Brush(ground_);
}

// The common controls keep colours of the system that only top-level windows are told of.
void ControlWindow::ColoursChanged() {
    Send(WM_SYSCOLORCHANGE);
    InvalidateRect(handle_, nullptr, TRUE);
}

void ControlWindow::FontsChanged() {
    Send(WM_SETFONT, reinterpret_cast<WPARAM>(context_.fonts.Dialog()));
}

void ControlWindow::Move(const Rect& area) const {
    SetWindowPos(handle_, nullptr, area.x, area.y, area.width, area.height,
                 SWP_NOZORDER | SWP_NOACTIVATE);
}

void ControlWindow::SendToBack() const {
    SetWindowPos(handle_, HWND_BOTTOM, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
}

void ControlWindow::Changed(Aspect aspect) {
    switch (aspect) {
        case Aspect::Text:
            ShowName();
            SetWindowTextA(handle_, model_.Text().c_str());
            return;
        case Aspect::Enabled:
            if (!model_.Enabled()) PassFocusOn();
            EnableWindow(handle_, model_.Enabled() ? TRUE : FALSE);
            return;
        case Aspect::Visible:
            context_.visibility.Set(handle_, model_.Shown());
            return;
        case Aspect::Now:
            UpdateWindow(handle_);
            return;
        default:
            return;
    }
}

// A control that is disabled would keep the keyboard to itself.
void ControlWindow::PassFocusOn() const {
    if (GetFocus() != handle_) return;
    SetFocus(GetNextDlgTabItem(TopLevelOf(handle_), handle_, FALSE));
}

LRESULT ControlWindow::Send(UINT message, WPARAM wParam, LPARAM lParam) const {
    return SendMessageA(handle_, message, wParam, lParam);
}

RECT ControlWindow::ClientArea() const {
    RECT area{};
    GetClientRect(handle_, &area);
    return area;
}

}  // namespace velkarix
