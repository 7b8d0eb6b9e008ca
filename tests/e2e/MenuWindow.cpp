#include "MenuWindow.h"

#include <algorithm>
#include <cstdio>
#include <sstream>

#include "AskInside.h"
#include "Input.h"
#include "Wait.h"

namespace velkarix::e2e {

namespace {

MenuItem ParseItem(const std::string& line) {
    MenuItem item;
    UINT type = 0;
    UINT state = 0;
    int end = 0;
    std::sscanf(line.c_str(), MenuLineFormat "%n", &item.number, &type, &state, &item.area.left,
                &item.area.top, &item.area.right, &item.area.bottom, &end);
    item.separator = (type & MFT_SEPARATOR) != 0;
    item.enabled = (state & MFS_DISABLED) == 0;
    item.caption = line.substr(std::min(line.size(), static_cast<std::size_t>(end)));
    return item;
}

}  // namespace

std::vector<MenuItem> ReadMenu(const Window& window) {
    std::istringstream text(AskInside(window, ReadMenuQuestion));
    std::vector<MenuItem> items;
    for (std::string line; std::getline(text, line);) items.push_back(ParseItem(line));
    return items;
}

std::vector<std::string> EntryCaptions(const Window& window) {
    std::vector<std::string> captions;
    for (const MenuItem& item : ReadMenu(window)) {
        if (item.separator) {
            captions.emplace_back("-");
        } else {
            captions.push_back(item.enabled ? item.caption : "(" + item.caption + ")");
        }
    }
    return captions;
}

Window WaitForPopup(DWORD processId) {
    return WaitFor([processId] {
        for (const Window& window : TopWindows(processId)) {
            if (window.Class() == PopupMenuClass) return window;
        }
        return Window();
    });
}

bool ChooseEntry(const Window& popup, const std::string& caption) {
    for (const MenuItem& item : ReadMenu(popup)) {
        if (item.caption != caption) continue;
        ClickAt(Inside(item.area));
        return true;
    }
    return false;
}

bool ClosePopup(const Window& popup) {
    PressKey(VK_ESCAPE);
    return WaitUntil([&] { return !popup || !popup.Visible(); });
}

}  // namespace velkarix::e2e
