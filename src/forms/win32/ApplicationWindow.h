// The hidden window that stands for this instance of the program and owns its main window.
#pragma once

#include "forms/win32/FormWindows.h"
#include "forms/win32/WindowClasses.h"

namespace velkarix {

class ApplicationWindow {
  public:
    // Also tells the context of the window.
    ApplicationWindow(DesktopContext& context, FormWindows& forms);
    ~ApplicationWindow();
    ApplicationWindow(const ApplicationWindow&) = delete;
    ApplicationWindow& operator=(const ApplicationWindow&) = delete;

  private:
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

    DesktopContext& context_;
    FormWindows& forms_;
    WindowClass class_;
};

}  // namespace velkarix
