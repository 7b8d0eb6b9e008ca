// The two ways that a native list shows its rows: in lines with columns, or as large icons.
#pragma once

#include "forms/ListView.h"
#include "forms/win32/WindowsHeaders.h"

namespace velkarix {

// The style bits of a list that is made in that mode.
DWORD ListModeStyle(ListMode mode);
// Brings a list into that mode; rows, selection and columns stay.
void ShowListMode(HWND list, ListMode mode);
// Gives the icons their places again, row after row. A list in details needs no such thing.
void ArrangeIcons(HWND list, ListMode mode);

// The position of the icon that lies nearest to `from` in the direction of an arrow key, the
// focused one left out; -1 when there is none. `from` is in the coordinates of the icons' places.
int FindNearestIcon(HWND list, const POINT& from, UINT arrowKey);

}  // namespace velkarix
