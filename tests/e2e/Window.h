// A window of another process: found by the product's name of its control, read, and clicked.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace velkarix::e2e {

class Window {
  public:
    Window() = default;
    explicit Window(HWND handle) : handle_(handle) {}

    HWND Handle() const { return handle_; }
    explicit operator bool() const { return IsWindow(handle_) != FALSE; }
    friend bool operator==(const Window&, const Window&) = default;

    // The product's name ("cmdRefresh", "frmMain"); empty for a window that has none.
    std::string Name() const;
    std::string Text() const;
    std::string Class() const;
    LONG Style() const { return GetWindowLongA(handle_, GWL_STYLE); }
    RECT Area() const;  // on the screen
    bool Visible() const { return IsWindowVisible(handle_) != FALSE; }
    bool Enabled() const { return IsWindowEnabled(handle_) != FALSE; }
    bool Checked() const { return Send(BM_GETCHECK) == BST_CHECKED; }
    DWORD Thread() const { return GetWindowThreadProcessId(handle_, nullptr); }

    // The control of that name in this window, at any depth; none when it isn't there.
    Window Find(const std::string& name) const;
    std::vector<Window> Children() const;  // at any depth

    // 0 when the window's program doesn't answer.
    LRESULT Send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;
    bool Post(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;

    // Clicks a button or link as the user would: false, and no click, when the user couldn't. It
    // doesn't wait for what the click does, which may be a dialog.
    bool Click() const;

  private:
    HWND handle_ = nullptr;
};

// All top-level windows, of any process, visible or not.
std::vector<Window> AllTopWindows();
// The visible top-level windows of a process.
std::vector<Window> TopWindows(DWORD processId);
// The one that has the product's name `name`; none when it isn't there.
Window TopWindow(DWORD processId, const std::string& name);
// What has the keyboard focus among the windows of that thread.
Window FocusOf(DWORD thread);

}  // namespace velkarix::e2e
