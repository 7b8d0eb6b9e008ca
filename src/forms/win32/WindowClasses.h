// The window classes of the program's own.
#pragma once

#include "forms/win32/WindowsHeaders.h"

namespace velkarix {

inline constexpr const char* FormClass = "VelkarixForm";  // a form of any kind
inline constexpr const char* AreaClass = "VelkarixArea";  // a panel or a page host

// A window class, registered for the length of its life.
class WindowClass {
  public:
    WindowClass(HINSTANCE instance, const char* name, WNDPROC procedure)
        : instance_(instance), name_(name) {
        WNDCLASSA windowClass{};
        windowClass.hInstance = instance;
        windowClass.lpszClassName = name;
        windowClass.lpfnWndProc = procedure;
        windowClass.hCursor = LoadCursorA(nullptr, IDC_ARROW);
        windowClass.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_3DFACE + 1);
        RegisterClassA(&windowClass);
    }
    ~WindowClass() { UnregisterClassA(name_, instance_); }
    WindowClass(const WindowClass&) = delete;
    WindowClass& operator=(const WindowClass&) = delete;

  private:
    HINSTANCE instance_;
    const char* name_;
};

}  // namespace velkarix
