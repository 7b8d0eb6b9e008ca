// How many objects of the system the program under test holds.
#pragma once

#include <windows.h>

#include "Program.h"

namespace velkarix::e2e {

struct ObjectCounts {
    DWORD kernel = 0;  // handles of files, events, keys and the like
    DWORD gdi = 0;     // brushes, fonts, bitmaps and the like
    DWORD user = 0;    // windows, menus, icons
};

// A count that can't be had is 0.
ObjectCounts CountObjects(const Program& program);

}  // namespace velkarix::e2e
