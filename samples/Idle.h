// What a harmless program of the sample machine does while it is looked at: nothing, without a
// window, until it is ended.
#pragma once

#include <windows.h>

inline int StayIdle() {
    Sleep(INFINITE);
    return 0;
}
