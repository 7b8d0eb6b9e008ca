// Windows found by the product's names of their controls.
#pragma once

#include <windows.h>

#include <string>

namespace velkarix {

struct NamedWindowSearch {
    const std::string& name;
    HWND found;
};

// FALSE when the window is the one.
inline BOOL CALLBACK LookAtNamedWindow(HWND window, LPARAM parameter) {
    auto& search = *reinterpret_cast<NamedWindowSearch*>(parameter);
    char name[256] = "";
    const HANDLE value = GetPropA(window, "Velkarix.Name");
    GlobalGetAtomNameA(static_cast<ATOM>(reinterpret_cast<UINT_PTR>(value)), name, 256);
    if (search.name == name) search.found = window;
    return search.found == nullptr ? TRUE : FALSE;
}

// `top` itself or a window inside it; null when none has that name.
inline HWND NamedWindow(HWND top, const std::string& name) {
    NamedWindowSearch search{name, nullptr};
    const auto parameter = reinterpret_cast<LPARAM>(&search);
    if (LookAtNamedWindow(top, parameter) != FALSE) {
        EnumChildWindows(top, LookAtNamedWindow, parameter);
    }
    return search.found;
}

}  // namespace velkarix
