#include "forms/win32/FormWindow.h"

#include <algorithm>
#include <typeinfo>

#include "forms/Controls.h"
#include "forms/win32/ControlWindows.h"
#include "forms/win32/FormArrangement.h"
#include "forms/win32/FormFrame.h"
#include "forms/win32/Icons.h"
#include "forms/win32/WindowClasses.h"
#include "forms/win32/WindowName.h"

namespace velkarix {

namespace {

// Windows 2000 hides the marks of focus and access keys until a key is pressed; here they show.
constexpr UINT ChangeUiState = 0x0127;
constexpr WPARAM ClearUiState = 2;
constexpr WPARAM FocusAndAccessKeys = 1 | 2;

// The arrow keys move among neighbours of one kind; options only inside their own group.
bool StartsGroup(const Control& control, const Control* previous) {
    const auto* option = dynamic_cast<const OptionButton*>(&control);
    const auto* before = dynamic_cast<const OptionButton*>(previous);
    if (option != nullptr && before != nullptr) return &option->Group() != &before->Group();
    return previous == nullptr || typeid(control) != typeid(*previous);
}

Rect AreaOf(const Control& control, const std::vector<Placement>& placements) {
    const auto found =
        std::find_if(placements.begin(), placements.end(),
                     [&](const Placement& each) { return each.control == &control; });
    return found == placements.end() ? Rect{} : found->area;
}

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
    MakeControls();
    if (form.Kind() == FormKind::Main) SetIcons();
    timers_ = std::make_unique<FormTimers>(handle_, form.Timers());
    form.AttachView(this);
    // From here on the window hears its messages.
    SetWindowLongPtrA(handle_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    SendMessageA(handle_, ChangeUiState, MAKEWPARAM(ClearUiState, FocusAndAccessKeys), 0);
}

FormWindow::~FormWindow() {
    if (!detached_) Detach();
    if (handle_ != nullptr) DestroyWindow(handle_);
}

void FormWindow::MakeControls() {
    RECT client{};
    GetClientRect(handle_, &client);
    const auto placements = ArrangeForm(form_, {client.right, client.bottom}, context_.metrics);
    const auto grounds = GroundsOf(form_.FormLayout());
    const Control* previous = nullptr;
    for (Control* control : form_.Controls()) {
        ControlPlace place;
        place.parent = handle_;
        place.area = AreaOf(*control, placements);
        place.id = static_cast<int>(controls_.size()) + 1;
        place.startsGroup = StartsGroup(*control, previous);
        if (const auto ground = grounds.find(control); ground != grounds.end()) {
            place.ground = ground->second;
        }
        controls_.push_back(MakeControlWindow(context_, *control, place));
        previous = control;
    }
    // What others stand on goes behind them; the inner ones first, for the outer ones to follow.
    for (auto each = placements.rbegin(); each != placements.rend(); ++each) {
        const ControlWindow* window = WindowOf(*each->control);
        if (window != nullptr && window->IsGround()) window->SendToBack();
    }
    if (const HWND button = DefaultButton()) {
        SendMessageA(button, BM_SETSTYLE, BS_DEFPUSHBUTTON, FALSE);
    }
}

void FormWindow::SetIcons() {
    largeIcon_ = StockIcon(context_.instance, "Application", GetSystemMetrics(SM_CXICON));
    smallIcon_ = StockIcon(context_.instance, "Application", GetSystemMetrics(SM_CXSMICON));
    SendMessageA(handle_, WM_SETICON, ICON_BIG, reinterpret_cast<LPARAM>(largeIcon_.get()));
    SendMessageA(handle_, WM_SETICON, ICON_SMALL, reinterpret_cast<LPARAM>(smallIcon_.get()));
}

ControlWindow* FormWindow::WindowOf(const Control& control) const {
    for (const auto& window : controls_) {
        if (&window->Model() == &control) return window.get();
    }
    return nullptr;
}

void FormWindow::Detach() {
    detached_ = true;
    form_.AttachView(nullptr);
    timers_->Detach();
    for (const auto& control : controls_) control->Detach();
    RemoveWindowName(handle_);
    ShowWindow(handle_, SW_HIDE);
}

void FormWindow::AppearanceChanged() {
    for (const auto& control : controls_) control->AppearanceChanged();
    RedrawWindow(handle_, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
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
    switch (message) {
        case WM_COMMAND:
        case WM_NOTIFY:
        case WM_DRAWITEM:
        case WM_CTLCOLORSTATIC:
        case WM_CTLCOLORBTN:
            return OnControlMessage(message, wParam, lParam);
        case WM_SIZE:
            if (wParam != SIZE_MINIMIZED) OnSize({LOWORD(lParam), HIWORD(lParam)});
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
            if (const HWND button = DefaultButton()) {
                return MAKELRESULT(GetDlgCtrlID(button), DC_HASDEFID);
            }
            return 0;
        case ChangeUiState:
            if (LOWORD(wParam) != ClearUiState) return 0;
            break;
        default:
            break;
    }
    return DefWindowProcA(handle_, message, wParam, lParam);
}

// What controls tell and ask goes to the control itself.
LRESULT FormWindow::OnControlMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    const auto at = [](auto value) { return reinterpret_cast<HWND>(value); };
    if (message == WM_COMMAND) {
        if (ControlWindow* control = ControlWindow::From(at(lParam))) {
            control->OnCommand(HIWORD(wParam));
        }
        return 0;
    }
    if (message == WM_NOTIFY) {
        auto& header = *reinterpret_cast<NMHDR*>(lParam);
        ControlWindow* control = ControlWindow::From(header.hwndFrom);
        return control != nullptr ? control->OnNotify(header) : 0;
    }
    if (message == WM_DRAWITEM) {
        const auto& item = *reinterpret_cast<const DRAWITEMSTRUCT*>(lParam);
        if (ControlWindow* control = ControlWindow::From(item.hwndItem)) control->OnDrawItem(item);
        return TRUE;
    }
    ControlWindow* control = ControlWindow::From(at(lParam));
    const HBRUSH ground =
        control != nullptr ? control->OnColour(reinterpret_cast<HDC>(wParam)) : nullptr;
    return ground != nullptr ? reinterpret_cast<LRESULT>(ground)
                             : DefWindowProcA(handle_, message, wParam, lParam);
}

void FormWindow::OnSize(const Size& inside) const {
    for (const Placement& placement : ArrangeForm(form_, inside, context_.metrics)) {
        if (const ControlWindow* window = WindowOf(*placement.control)) {
            window->Move(placement.area);
        }
    }
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

HWND FormWindow::DefaultButton() const {
    const Button* button = form_.DefaultButton();
    const ControlWindow* window = button != nullptr ? WindowOf(*button) : nullptr;
    return window != nullptr ? window->Handle() : nullptr;
}

}  // namespace velkarix
