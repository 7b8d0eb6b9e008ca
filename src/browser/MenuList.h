// Entries that extensions add to the browser's context menu, each a key named by its text.
#pragma once

#include "browser/ItemList.h"

namespace velkarix {

class MenuList : public ItemList {
  public:
    MenuList(Application& application, Form& page);

  private:
    void AddRow(const ItemPlace& place, const std::string& holder, const std::string& name,
                bool enabled) override;
};

}  // namespace velkarix
