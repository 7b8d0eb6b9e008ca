#include "forms/win32/Win32Desktop.h"

#include <vector>

#include "forms/win32/ApplicationWindow.h"
#include "forms/win32/Clipboard.h"
#include "forms/win32/ColorDialog.h"
#include "forms/win32/CommonControls.h"
#include "forms/win32/EventLoop.h"
#include "forms/win32/FormFrame.h"
#include "forms/win32/FormWindows.h"
#include "forms/win32/MessageBoxes.h"
#include "forms/win32/PopupMenus.h"
#include "forms/win32/SaveDialog.h"
#include "forms/win32/WindowClasses.h"
#include "forms/win32/WindowTree.h"

namespace velkarix {

struct Win32Desktop::Windows {
    explicit Windows(HINSTANCE instance)
        : context(instance),
          formClass(instance, FormClass, FormWindow::Procedure),
          areaClass(instance, AreaClass, DefWindowProcA) {}

    DesktopContext context;
    WindowClass formClass;
    WindowClass areaClass;
    FormWindows forms{context};
    ApplicationWindow application{context, forms};
    EventLoop loop{context, forms};
    ColorDialog colorDialog;
    std::vector<HWND> dialogs;  // shown modally, the top one last

    HWND HostOf(const FormWindow& page) const { return GetParent(page.Handle()); }
    // The top-level window that `form` is or stands in; null when the form isn't created.
    HWND TopLevelAround(const Form& form) const {
        const FormWindow* window = forms.Of(form);
        return window != nullptr ? TopLevelOf(window->Handle()) : nullptr;
    }
    FormWindow* FormAround(HWND window) const { return forms.WithHandle(TopLevelOf(window)); }

    // Owns what the user is asked now: the top dialog, else the main form; null when hidden.
    HWND AskingWindow() const {
        const FormWindow* main = forms.Main();
        const HWND window = !dialogs.empty()  ? dialogs.back()
                            : main != nullptr ? main->Handle()
                                              : nullptr;
        return window != nullptr && IsWindowVisible(window) != FALSE ? window : nullptr;
    }
};

Win32Desktop::Win32Desktop(void* instance) {
    RegisterCommonControls();
    windows_ = std::make_unique<Windows>(instance != nullptr ? static_cast<HINSTANCE>(instance)
                                                             : GetModuleHandleA(nullptr));
}

Win32Desktop::~Win32Desktop() = default;

void Win32Desktop::SetApplicationTitle(const std::string& title) {
    SetWindowTextA(windows_->context.applicationWindow, title.c_str());
}

void Win32Desktop::Create(Form& form, PageHost* host) {
    HWND parent = windows_->context.applicationWindow;
    if (const ControlWindow* place = host != nullptr ? windows_->forms.WindowOf(*host) : nullptr) {
        parent = place->Handle();
    }
    windows_->forms.Add(form, parent);
}

void Win32Desktop::Show(Form& form) {
    FormWindow* window = windows_->forms.Of(form);
    if (window == nullptr) return;
    windows_->context.pending.Run();
    if (form.Kind() != FormKind::Page) {
        ShowWindow(window->Handle(), SW_SHOW);
        return;
    }
    ShowWindow(window->Handle(), SW_SHOWNA);
    if (FormWindow* around = windows_->FormAround(window->Handle())) {
        around->Focus().Enter(around->Handle(), window->Handle(), windows_->HostOf(*window));
    }
}

void Win32Desktop::ShowModal(Form& form, Form& owner) {
    const FormWindow* dialog = windows_->forms.Of(form);
    const FormWindow* below = windows_->forms.Of(owner);
    if (dialog == nullptr || below == nullptr || form.Closing()) return;
    const HWND around = TopLevelOf(below->Handle());
    SetWindowLongPtrA(dialog->Handle(), GWLP_HWNDPARENT, reinterpret_cast<LONG_PTR>(around));
    FitFrame(dialog->Handle(), form, windows_->context);
    CentreOver(dialog->Handle(), around);
    const bool wasEnabled = EnableWindow(around, FALSE) == FALSE;
    windows_->dialogs.push_back(dialog->Handle());
    ShowWindow(dialog->Handle(), SW_SHOW);
    windows_->loop.Run([&form] { return form.Closing(); });
    windows_->dialogs.pop_back();
    // The owner first: a dialog that goes hands its activity to an enabled owner only.
    if (wasEnabled) EnableWindow(around, TRUE);
    ShowWindow(dialog->Handle(), SW_HIDE);
}

void Win32Desktop::Destroy(Form& form) {
    FormWindow* window = windows_->forms.Of(form);
    if (window == nullptr) return;
    if (form.Kind() == FormKind::Page) {
        if (FormWindow* around = windows_->FormAround(window->Handle())) {
            around->Focus().Leave(window->Handle(), windows_->HostOf(*window));
        }
    }
    windows_->forms.Remove(*window);
}

std::uintptr_t Win32Desktop::HandleOf(const Form& form) {
    const FormWindow* window = windows_->forms.Of(form);
    return window != nullptr ? reinterpret_cast<std::uintptr_t>(window->Handle()) : 0;
}

void Win32Desktop::Focus(Control& control) {
    const ControlWindow* window = windows_->forms.WindowOf(control);
    if (window == nullptr) return;
    // It may be of a view that has just been switched to.
    windows_->context.visibility.Refresh();
    if (FormWindow* around = windows_->FormAround(window->Handle())) {
        around->Focus().Give(around->Handle(), window->Handle());
    }
}

MessageAnswer Win32Desktop::ShowMessage(const Message& message) {
    windows_->context.pending.Run();
    return ShowMessageBox(windows_->AskingWindow(), message);
}

std::optional<std::string> Win32Desktop::AskSaveFile(Form& owner, const SaveRequest& request) {
    const HWND around = windows_->TopLevelAround(owner);
    if (around == nullptr) return std::nullopt;
    windows_->context.pending.Run();
    return AskSavePath(around, request);
}

std::optional<Color> Win32Desktop::AskColor(Form& owner, Color present) {
    const HWND around = windows_->TopLevelAround(owner);
    if (around == nullptr) return std::nullopt;
    windows_->context.pending.Run();
    return windows_->colorDialog.Ask(around, present);
}

std::optional<std::string> Win32Desktop::PopUp(Form& owner, const Menu& menu) {
    const HWND around = windows_->TopLevelAround(owner);
    if (around == nullptr) return std::nullopt;
    windows_->context.pending.Run();
    const DWORD mouse = GetMessagePos();
    const POINT atMouse{static_cast<short>(LOWORD(mouse)), static_cast<short>(HIWORD(mouse))};
    return TrackPopup(around, menu, windows_->context.popupPoint.value_or(atMouse));
}

bool Win32Desktop::SetClipboardText(const std::string& text) {
    return PutOnClipboard(windows_->context.applicationWindow, text);
}

void Win32Desktop::RunEventLoop() {
    windows_->loop.Run([this] {
        const FormWindow* main = windows_->forms.Main();
        return main == nullptr || main->Model().Closing();
    });
}

void Win32Desktop::Quit() {
    windows_->loop.Quit();
}

void Win32Desktop::YieldEvents() {
    windows_->loop.RunWaiting();
}

}  // namespace velkarix
