// Where a window stands among the others. (The system's own call for it came with Windows 98.)
#pragma once

#include "forms/win32/WindowsHeaders.h"

namespace velkarix {

// The window itself when it isn't a child; null for null.
inline HWND TopLevelOf(HWND window) {
    while (window != nullptr && (GetWindowLongA(window, GWL_STYLE) & WS_CHILD) != 0) {
        window = GetParent(window);
    }
    return window;
}

// Whether nothing but `outer` itself hides `window`, which stands inside it.
inline bool IsShownIn(HWND outer, HWND window) {
    while (window != nullptr && window != outer) {
        if ((GetWindowLongA(window, GWL_STYLE) & WS_VISIBLE) == 0) return false;
        window = GetParent(window);
    }
    return window == outer;
}

inline bool IsWithin(HWND outer, HWND window) {
    return window == outer || IsChild(outer, window) != FALSE;
}

}  // namespace velkarix
