// Web domains that are placed in a security zone of the browser.
#pragma once

#include "browser/ItemList.h"

namespace velkarix {

class DomainList : public ItemList {
  public:
    DomainList(Application& application, Form& page);

  private:
    void AddRow(const ItemPlace& place, const std::string& holder, const std::string& name,
                bool enabled) override;
};

}  // namespace velkarix
