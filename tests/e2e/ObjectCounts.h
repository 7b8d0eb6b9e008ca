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

// The most frequent of many counts, once everything is drawn: what is held only while something is
// done isn't a loss. A failure of the test where a count can't be had.
ObjectCounts RestingObjects(const Program& program);

// A failure of the test where the program holds more than `before`.
void ExpectNoMoreObjects(const Program& program, const ObjectCounts& before);

}  // namespace velkarix::e2e
