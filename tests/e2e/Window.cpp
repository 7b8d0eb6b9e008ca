#include "Window.h"

#include <algorithm>
#include <cstdint>

#include "Wait.h"

namespace velkarix::e2e {

namespace {

BOOL CALLBACK Collect(HWND handle, LPARAM list) {
    reinterpret_cast<std::vector<Window>*>(list)->emplace_back(handle);
    return TRUE;
}

// That of the name that the program gives a window; 0 when it gives none.
ATOM AtomOf(const Window& window) {
    return static_cast<ATOM>(
        reinterpret_cast<std::uintptr_t>(GetPropA(window.Handle(), "Velkarix.Name")));
}

}  // namespace

std::string Window::Name() const {
    const ATOM atom = AtomOf(*this);
    char name[256] = "";
    if (atom != 0) GlobalGetAtomNameA(atom, name, sizeof name);
    return name;
}

std::string Window::Text() const {
    char text[4096] = "";
    Send(WM_GETTEXT, sizeof text, reinterpret_cast<LPARAM>(text));
    return text;
}

std::string Window::Class() const {
    char name[256] = "";
    GetClassNameA(handle_, name, sizeof name);
    return name;
}

RECT Window::Area() const {
    RECT area{};
    GetWindowRect(handle_, &area);
    return area;
}

std::vector<Window> Window::Children() const {
    std::vector<Window> children;
    if (*this) EnumChildWindows(handle_, Collect, reinterpret_cast<LPARAM>(&children));
    return children;
}

Window Window::Find(const std::string& name) const {
    const ATOM atom = GlobalFindAtomA(name.c_str());
    if (atom == 0) return {};
    for (const Window& child : Children()) {
        // The atom compares without case.
        if (AtomOf(child) == atom && child.Name() == name) return child;
    }
    return {};
}

LRESULT Window::Send(UINT message, WPARAM wParam, LPARAM lParam) const {
    DWORD_PTR result = 0;
    SendMessageTimeoutA(handle_, message, wParam, lParam, SMTO_NORMAL, Patience, &result);
    return static_cast<LRESULT>(result);
}

bool Window::Post(UINT message, WPARAM wParam, LPARAM lParam) const {
    return PostMessageA(handle_, message, wParam, lParam) != FALSE;
}

bool Window::Click() const {
    // The message would reach a button under a modal dialog, too.
    const HWND top = GetAncestor(handle_, GA_ROOT);
    const bool ready =
        WaitUntil([&] { return Visible() && Enabled() && IsWindowEnabled(top) != FALSE; }, 1000);
    return ready && Post(BM_CLICK);
}

std::vector<Window> AllTopWindows() {
    std::vector<Window> windows;
    EnumWindows(Collect, reinterpret_cast<LPARAM>(&windows));
    return windows;
}

std::vector<Window> TopWindows(DWORD processId) {
    std::vector<Window> windows = AllTopWindows();
    std::erase_if(windows, [processId](const Window& window) {
        DWORD id = 0;
        GetWindowThreadProcessId(window.Handle(), &id);
        return id != processId || !window.Visible();
    });
    return windows;
}

Window TopWindow(DWORD processId, const std::string& name) {
    const std::vector<Window> windows = TopWindows(processId);
    const auto found =
        std::ranges::find_if(windows, [&](const Window& window) { return window.Name() == name; });
    return found == windows.end() ? Window() : *found;
}

Window FocusOf(DWORD thread) {
    GUITHREADINFO info{};
    info.cbSize = sizeof info;
    return GetGUIThreadInfo(thread, &info) ? Window(info.hwndFocus) : Window();
}

}  // namespace velkarix::e2e
