// How many objects of the system the program under test holds.
#pragma once

#include <windows.h>

#include "Program.h"

namespace velkarix::e2e {

struct ObjectCounts {
    DWORD kernel = 0;  // handles of files, events, keys and the like
    DWORD gdi = 0;     // brushes, fonts, bitmaps and the like
    DWORD user = 0;    // windows, menus, icons
    // Device contexts of windows, where they can be told from the other objects; Wine keeps some.
    DWORD windowContexts = 0;
};

// A count that can't be had is 0.
ObjectCounts CountObjects(const Program& program);

}  // namespace velkarix::e2e
