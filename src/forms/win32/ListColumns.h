// The columns of a native list.
#pragma once

#include "forms/ListView.h"
#include "forms/win32/DesktopContext.h"

namespace velkarix {

// Makes the columns, with their shares of the width for as long as there is nothing to fit to.
void InsertColumns(HWND list, const ListView& model);
// Fits the columns to their headers and to all rows of the model.
void FitColumns(HWND list, ListView& model, const DesktopContext& context);

}  // namespace velkarix
