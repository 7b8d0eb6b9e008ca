#include "TabWindow.h"

#include <windows.h>
#include <commctrl.h>

#include "RemoteMemory.h"

namespace velkarix::e2e {

std::vector<std::string> TabWindow::Captions() const {
    struct ItemWithText {
        TCITEMA item{};
        char text[256] = "";
    };
    std::vector<std::string> captions;
    const auto count = static_cast<int>(Send(TCM_GETITEMCOUNT));
    for (int i = 0; i < count; ++i) {
        ItemWithText tab;
        const RemoteMemory memory(Handle(), sizeof tab);
        tab.item.mask = TCIF_TEXT;
        tab.item.pszText = static_cast<char*>(memory.Address(offsetof(ItemWithText, text)));
        tab.item.cchTextMax = sizeof tab.text;
        memory.Write(0, &tab, sizeof tab);
        Send(TCM_GETITEMA, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(memory.Address()));
        memory.Read(0, &tab, sizeof tab);
        captions.emplace_back(tab.text);
    }
    return captions;
}

int TabWindow::Selected() const {
    return static_cast<int>(Send(TCM_GETCURSEL)) + 1;
}

RECT TabWindow::TabArea(int tab) const {
    RECT area{};
    const RemoteMemory memory(Handle(), sizeof area);
    Send(TCM_GETITEMRECT, static_cast<WPARAM>(tab - 1), reinterpret_cast<LPARAM>(memory.Address()));
    memory.Read(0, &area, sizeof area);
    MapWindowPoints(Handle(), nullptr, reinterpret_cast<POINT*>(&area), 2);
    return area;
}

}  // namespace velkarix::e2e
