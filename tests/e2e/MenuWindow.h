// A menu of the program under test: a popup that is open, or a window's system menu.
#pragma once

#include <string>
#include <vector>

#include "Window.h"

namespace velkarix::e2e {

struct MenuItem {
    UINT number = 0;
    bool separator = false;
    bool enabled = false;
    std::string caption;  // with its "&"
    RECT area{};          // on the screen; of popups only
};

// The items of a popup that `window` is, or of the system menu that `window` has.
std::vector<MenuItem> ReadMenu(const Window& window);

// Their captions as a reader sees them: grey ones in brackets, separators as dashes.
std::vector<std::string> EntryCaptions(const Window& window);

// The popup that a process has open, as soon as it does; none when there is none to come.
Window WaitForPopup(DWORD processId);
// Clicks the entry of that caption; false when the popup has none.
bool ChooseEntry(const Window& popup, const std::string& caption);
// Presses Esc until the popup is gone.
bool ClosePopup(const Window& popup);

}  // namespace velkarix::e2e
