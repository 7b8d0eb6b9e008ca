// Sizes that are decided by the native controls themselves, differently from one system to the
// next.
#pragma once

#include "forms/Layout.h"
#include "forms/win32/WindowsHeaders.h"

namespace velkarix {

struct NativeMeasures {
    int boxHeight = 0;     // of a closed drop-down list
    Insets aroundTabPage;  // from a tab control's edges to the area that belongs to its tabs
};

// Asks hidden controls that have that font. The common controls must be registered.
NativeMeasures MeasureNatives(HFONT font);

}  // namespace velkarix
