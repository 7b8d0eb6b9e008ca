#include "forms/win32/ComboBoxWindow.h"

#include <algorithm>
#include <cstddef>

namespace velkarix {

namespace {

constexpr std::size_t DroppedEntries = 8;
constexpr DWORD Style = WS_TABSTOP | WS_VSCROLL | CBS_DROPDOWNLIST;

}  // namespace

ComboBoxWindow::ComboBoxWindow(DesktopContext& context, ComboBox& box, const ControlPlace& place)
    : ControlWindow(context, box, place, {"COMBOBOX", Style, 0, true}), box_(box) {
    for (const std::string& entry : box.Entries()) {
        Send(CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(entry.c_str()));
    }
    ShowSelection();
    ComboBoxWindow::Move(place.area);
}

void ComboBoxWindow::Move(const Rect& area) const {
    const auto shown = static_cast<int>(std::min(box_.Entries().size(), DroppedEntries));
    const int entries = shown * static_cast<int>(Send(CB_GETITEMHEIGHT));
    ControlWindow::Move(
        {area.x, area.y, area.width, area.height + entries + 2 * GetSystemMetrics(SM_CYBORDER)});
}

void ComboBoxWindow::Changed(Aspect aspect) {
    if (aspect == Aspect::Value) ShowSelection();
    ControlWindow::Changed(aspect);
}

void ComboBoxWindow::ShowSelection() const {
    Send(CB_SETCURSEL, static_cast<WPARAM>(box_.Selected()));
}

// A list that closes may take its selection back without a word.
void ComboBoxWindow::OnCommand(UINT notification) {
    const int selected = static_cast<int>(Send(CB_GETCURSEL));
    const bool changed = notification == CBN_SELCHANGE ||
                         (notification == CBN_CLOSEUP && selected != box_.Selected());
    if (changed) box_.UserSelect(selected);
}

bool ComboBoxWindow::OnEnter() {
    return PassToDroppedList(VK_RETURN);
}

bool ComboBoxWindow::OnEscape() {
    return PassToDroppedList(VK_ESCAPE);
}

bool ComboBoxWindow::PassToDroppedList(WPARAM key) const {
    if (Send(CB_GETDROPPEDSTATE) == FALSE) return false;
    Send(WM_KEYDOWN, key);
    return true;
}

}  // namespace velkarix
