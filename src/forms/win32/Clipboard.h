// The clipboard, as far as text is put on it.
#pragma once

#include <string>

#include "forms/win32/WindowsHeaders.h"

namespace velkarix {

// Puts text on the clipboard for `owner`, in place of what is there. False when another program
// keeps it open, or memory is short; what was there stays then. False also when the clipboard
// doesn't take the text, and then it is empty.
bool PutOnClipboard(HWND owner, const std::string& text);

}  // namespace velkarix
