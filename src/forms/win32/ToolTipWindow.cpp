#include "forms/win32/ToolTipWindow.h"

namespace velkarix {

ToolTipWindow::ToolTipWindow(HINSTANCE instance, HWND control, const std::string& words)
    : control_(control),
      handle_(CreateWindowExA(WS_EX_TOPMOST, TOOLTIPS_CLASSA, nullptr, WS_POPUP | TTS_ALWAYSTIP,
                              CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, control,
                              nullptr, instance, nullptr)) {
    TOOLINFOA tool{};
    // The size that the oldest of the libraries knows.
    tool.cbSize = TTTOOLINFOA_V1_SIZE;
    tool.uFlags = TTF_IDISHWND;
    tool.hwnd = GetParent(control);
    tool.uId = reinterpret_cast<UINT_PTR>(control);
    tool.lpszText = const_cast<char*>(words.c_str());
    SendMessageA(handle_, TTM_ADDTOOLA, 0, reinterpret_cast<LPARAM>(&tool));
}

ToolTipWindow::~ToolTipWindow() {
    // It may have gone with the window that owns it.
    if (IsWindow(handle_) != FALSE) DestroyWindow(handle_);
}

void ToolTipWindow::Relay(UINT message, WPARAM wParam, LPARAM lParam) const {
    if (message < WM_MOUSEFIRST || message > WM_MOUSELAST) return;
    MSG relayed{};
    relayed.hwnd = control_;
    relayed.message = message;
    relayed.wParam = wParam;
    relayed.lParam = lParam;
    relayed.time = static_cast<DWORD>(GetMessageTime());
    GetCursorPos(&relayed.pt);
    SendMessageA(handle_, TTM_RELAYEVENT, 0, reinterpret_cast<LPARAM>(&relayed));
}

}  // namespace velkarix
