// The part of the screen that windows may cover, and sizes of rectangles on it.
#pragma once

#include "forms/win32/WindowsHeaders.h"

namespace velkarix {

inline LONG Width(const RECT& area) {
    return area.right - area.left;
}
inline LONG Height(const RECT& area) {
    return area.bottom - area.top;
}

// Without the task bar.
inline RECT WorkArea() {
    RECT area{0, 0, GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)};
    SystemParametersInfoA(SPI_GETWORKAREA, 0, &area, 0);
    return area;
}

}  // namespace velkarix
