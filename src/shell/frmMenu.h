// All context menus of the program. An entry does no work of its own: it runs a handler of the
// page that popped the menu up.
#pragma once

#include <string_view>
#include <vector>

#include "forms/Desktop.h"
#include "forms/Menu.h"

namespace velkarix {

class frmMenu {
  public:
    explicit frmMenu(Desktop& desktop);

    const std::vector<Menu>& Menus() const { return menus_; }
    // The menu of that product name ("mnuProcess"); null when there is none.
    Menu* Find(std::string_view name);
    // Shows the menu and runs the handler of the chosen entry on `page`, which may be unloaded by
    // it. Entries keep their enabled state for the next time.
    void PopupMenu(std::string_view name, Form& page);

  private:
    Desktop& desktop_;
    std::vector<Menu> menus_;
};

}  // namespace velkarix
