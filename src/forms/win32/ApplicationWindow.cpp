#include "forms/win32/ApplicationWindow.h"

#include "forms/Desktop.h"

namespace velkarix {

namespace {

// Told by Windows XP and later when the theme is another.
constexpr UINT ThemeChanged = 0x031A;

bool ConcernsAppearance(UINT message) {
    return message == WM_SYSCOLORCHANGE || message == WM_SETTINGCHANGE ||
           message == WM_DISPLAYCHANGE || message == ThemeChanged;
}

}  // namespace

ApplicationWindow::ApplicationWindow(DesktopContext& context, FormWindows& forms)
    : context_(context),
      forms_(forms),
      class_(context.instance, ApplicationWindowClass, Procedure) {
    context.applicationWindow =
        CreateWindowExA(WS_EX_TOOLWINDOW, ApplicationWindowClass, "", WS_POPUP, 0, 0, 0, 0, nullptr,
                        nullptr, context.instance, nullptr);
    SetWindowLongPtrA(context.applicationWindow, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
}

ApplicationWindow::~ApplicationWindow() {
    DestroyWindow(context_.applicationWindow);
    context_.applicationWindow = nullptr;
}

LRESULT CALLBACK ApplicationWindow::Procedure(HWND window, UINT message, WPARAM wParam,
                                              LPARAM lParam) {
    const auto* self =
        reinterpret_cast<const ApplicationWindow*>(GetWindowLongPtrA(window, GWLP_USERDATA));
    if (self != nullptr && message == EndFormsMessage) {
        self->forms_.EndRemoved();
        return 0;
    }
    if (self != nullptr && ConcernsAppearance(message)) {
        self->forms_.AppearanceChanged(self->context_.ReloadAppearance());
    }
    return DefWindowProcA(window, message, wParam, lParam);
}

}  // namespace velkarix
