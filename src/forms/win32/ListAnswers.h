// What a native list without rows of its own asks about the model's.
#pragma once

#include "forms/ListView.h"
#include "forms/win32/Fonts.h"
#include "forms/win32/WindowsHeaders.h"

namespace velkarix {

// The row at a position of the native list; null when the model has none there.
ListRow* RowAt(ListView& list, int position);

// Fills in what LVN_GETDISPINFO asks for: text, image, check box.
void DescribeRow(ListView& list, LVITEMA& item);
// Gives a row's mark to its first column, or to its icon's text. The result is the answer to
// NM_CUSTOMDRAW.
LRESULT MarkDrawnRow(ListView& list, const Fonts& fonts, NMLVCUSTOMDRAW& draw);
// The position of the row that the user's typing, or an arrow key among icons, leads to; or -1.
// Some systems ask in wide letters whatever their parent speaks.
LRESULT FindRow(ListView& list, const NMLVFINDITEMA& wanted);
LRESULT FindRow(ListView& list, const NMLVFINDITEMW& wanted);

}  // namespace velkarix
