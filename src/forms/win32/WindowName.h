// The product's name of a control or form on its window, for automated tests and accessibility
// tools: a window property whose value is a global atom.
#pragma once

#include <string>

#include "forms/win32/WindowsHeaders.h"

namespace velkarix {

void SetWindowName(HWND window, const std::string& name);
// Must be called before the window is destroyed: the system keeps an atom until it is deleted.
void RemoveWindowName(HWND window);

}  // namespace velkarix
