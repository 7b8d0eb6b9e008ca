// The few words that come up where the mouse rests on a control.
#pragma once

#include <string>

#include "forms/win32/WindowsHeaders.h"

namespace velkarix {

class ToolTipWindow {
  public:
    ToolTipWindow(HINSTANCE instance, HWND control, const std::string& words);
    ~ToolTipWindow();
    ToolTipWindow(const ToolTipWindow&) = delete;
    ToolTipWindow& operator=(const ToolTipWindow&) = delete;

    // Has the native window see a message that came to the control. It wouldn't see any by itself:
    // letting it look for them would put its own procedure before that of the control.
    void Relay(UINT message, WPARAM wParam, LPARAM lParam) const;

  private:
    HWND control_;
    HWND handle_;
};

}  // namespace velkarix
