#include "shell/frmMenu.h"

#include <algorithm>
#include <optional>
#include <string>

#include "shell/MenuTables.h"

namespace velkarix {

frmMenu::frmMenu(Desktop& desktop) : desktop_(desktop), menus_(AllMenus()) {}

Menu* frmMenu::Find(std::string_view name) {
    const auto found = std::find_if(menus_.begin(), menus_.end(),
                                    [name](const Menu& menu) { return menu.name == name; });
    return found == menus_.end() ? nullptr : &*found;
}

void frmMenu::PopupMenu(std::string_view name, Form& page) {
    Menu* menu = Find(name);
    if (menu == nullptr) return;
    const std::optional<std::string> chosen = desktop_.PopUp(page, *menu);
    if (!chosen) return;
    if (const MenuEntry* entry = menu->Find(*chosen)) page.Run(entry->handler);
}

}  // namespace velkarix
