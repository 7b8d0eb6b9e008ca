#include "forms/win32/FormWindow.h"

#include "forms/win32/FormArrangement.h"
#include "forms/win32/FormFrame.h"
#include "forms/win32/Icons.h"
#include "forms/win32/WindowClasses.h"
#include "forms/win32/WindowName.h"
#include "forms/win32/WindowTree.h"

namespace velkarix {

namespace {

// Windows 2000 hides the marks of focus and access keys until a key is pressed; here they show.
constexpr UINT ChangeUiState = 0x0127;
constexpr WPARAM ClearUiState = 2;
constexpr WPARAM FocusAndAccessKeys = 1 | 2;

constexpr UINT MouseWheel = 0x020A;  // of Windows 98 and NT 4 and later

}  // namespace

FormWindow::FormWindow(DesktopContext& context, Form& form, HWND parent)
    : context_(context), form_(form) {
    const FormFrame frame = FrameOf(form, parent, context);
    const RECT& outside = frame.outside;
    handle_ =
        CreateWindowExA(frame.extendedStyle, FormClass, form.Caption().c_str(), frame.style,
                        outside.left, outside.top, outside.right - outside.left,
                        outside.bottom - outside.top, parent, nullptr, context.instance, nullptr);
    SetWindowName(handle_, form.Name());
    controls_ = std::make_unique<FormControls>(context, form, handle_);
    if (form.Kind() == FormKind::Main) SetIcons();
    timers_ = std::make_unique<FormTimers>(handle_, form.Timers());
    form.AttachView(this);
    // From here on the window hears its messages.
    SetWindowLongPtrA(handle_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    SendMessageA(handle_, ChangeUiState, MAKEWPARAM(ClearUiState, FocusAndAccessKeys), 0);
}

FormWindow::~FormWindow() {
    Detach();
    if (handle_ != nullptr) DestroyWindow(handle_);
}

void FormWindow::SetIcons() {
    largeIcon_ = StockIcon(context_.instance, "Application", GetSystemMetrics(SM_CXICON));
    smallIcon_ = StockIcon(context_.instance, "Application", GetSystemMetrics(SM_CXSMICON));
    SendMessageA(handle_, WM_SETICON, ICON_BIG, reinterpret_cast<LPARAM>(largeIcon_.get()));
    SendMessageA(handle_, WM_SETICON, ICON_SMALL, reinterpret_cast<LPARAM>(smallIcon_.get()));
}

void FormWindow::Detach() {
    if (detached_) return;
    detached_ = true;
    form_.AttachView(nullptr);
    timers_->Detach();
    controls_->Detach();
    RemoveWindowName(handle_);
    ShowWindow(handle_, SW_HIDE);
}

void FormWindow::AppearanceChanged(bool otherFonts) {
    controls_->AppearanceChanged(otherFonts);
    FitFrame(handle_, form_, context_);
    ArrangeControls();
    RedrawWindow(handle_, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
}

void FormWindow::ArrangeControls() {
    if (scroll_.Fitting()) return;
    controls_->Arrange(scroll_.PlaceFor(handle_, LeastInside(form_, context_.metrics)));
}

// True when the controls have other places now.
bool FormWindow::OnScrolling(UINT message, WPARAM wParam) {
    switch (message) {
        case WM_HSCROLL:
        case WM_VSCROLL:
            return scroll_.OnScroll(handle_, message, wParam);
        case MouseWheel:
            return scroll_.OnWheel(handle_, wParam);
        default:
            return false;
    }
}

// In a page that has room enough, it may be the main form that hides a part.
void FormWindow::Reveal(HWND control) {
    if (scroll_.Reveal(handle_, control)) ArrangeControls();
    const HWND outer = TopLevelOf(handle_);
    if (outer != handle_) {
        SendMessageA(outer, RevealMessage, 0, reinterpret_cast<LPARAM>(control));
    }
}

void FormWindow::CaptionChanged() {
    SetWindowTextA(handle_, form_.Caption().c_str());
}

// The loop that serves the form looks up when a message has come.
void FormWindow::CloseAsked() {
    PostMessageA(handle_, WM_NULL, 0, 0);
}

LRESULT CALLBACK FormWindow::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    auto* self = reinterpret_cast<FormWindow*>(GetWindowLongPtrA(window, GWLP_USERDATA));
    if (self != nullptr && message == WM_NCDESTROY) self->handle_ = nullptr;
    if (self == nullptr || self->handle_ == nullptr || self->detached_) {
        return DefWindowProcA(window, message, wParam, lParam);
    }
    const ProcedureScope scope(self->context_);
    return self->OnMessage(message, wParam, lParam);
}

LRESULT FormWindow::OnMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    if (OnScrolling(message, wParam)) {
        ArrangeControls();
        return 0;
    }
    switch (message) {
        case WM_SIZE:
            if (wParam != SIZE_MINIMIZED) ArrangeControls();
            return 0;
        case WM_SHOWWINDOW:
            // Its form may have set texts as it loaded.
            if (wParam != FALSE) ArrangeControls();
            break;
        case RevealMessage:
            Reveal(reinterpret_cast<HWND>(lParam));
            return 0;
        case RearrangeMessage:
            ArrangeControls();
            return 0;
        case WM_TIMER:
            timers_->OnTimer(wParam);
            return 0;
        case WM_ACTIVATE:
            OnActivate(LOWORD(wParam) != WA_INACTIVE);
            break;
        case WM_SETFOCUS:
            focus_.Restore(handle_);
            return 0;
        case WM_CLOSE:
            form_.Close();
            return 0;
        case DM_GETDEFID:
            if (const HWND button = controls_->DefaultButton()) {
                return MAKELRESULT(GetDlgCtrlID(button), DC_HASDEFID);
            }
            return 0;
        case ChangeUiState:
            if (LOWORD(wParam) != ClearUiState) return 0;
            break;
        default:
            break;
    }
    LRESULT result = 0;
    return ServeControlMessage(message, wParam, lParam, result)
               ? result
               : DefWindowProcA(handle_, message, wParam, lParam);
}

void FormWindow::OnActivate(bool active) {
    if (!active) {
        focus_.Keep(handle_);
    } else if (form_.Kind() == FormKind::Main) {
        // Who looks for this program finds its main window just above the application window.
        SetWindowPos(context_.applicationWindow, handle_, 0, 0, 0, 0,
                     SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
    }
}

}  // namespace velkarix
