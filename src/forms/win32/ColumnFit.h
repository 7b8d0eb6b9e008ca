// Fits the columns of a native list to their headers and to all rows of the model: by itself, a
// list that asks its owner for the rows measures only those in sight.
#pragma once

#include "forms/ListView.h"
#include "forms/win32/DesktopContext.h"

namespace velkarix {

void FitColumns(HWND list, ListView& model, const DesktopContext& context);
// Shares the width of the list out evenly, for as long as there is nothing to fit to.
void ShareColumns(HWND list, std::size_t columns);

}  // namespace velkarix
