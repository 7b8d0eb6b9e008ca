// Calls that not every Windows has, looked up in libraries that are loaded anyway.
#pragma once

#include "forms/win32/WindowsHeaders.h"

namespace velkarix {

// Makes the window classes of the common controls ready.
void RegisterCommonControls();

// Asks for one WM_MOUSELEAVE when the mouse leaves `window`. False where the system can't tell.
bool AskForMouseLeave(HWND window);

// Whether image lists and icons blend the alpha of their pixels, which came with version 6 of
// the common controls.
bool BlendsAlpha();

}  // namespace velkarix
