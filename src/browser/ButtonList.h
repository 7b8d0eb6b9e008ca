// Buttons that extensions add to the browser's toolbar, each a key that names its code in one of
// four ways.
#pragma once

#include "browser/ClassList.h"

namespace velkarix {

class ButtonList : public ClassList {
  public:
    ButtonList(Application& application, Form& page);

  private:
    void AddRow(const ItemPlace& place, const std::string& holder, const std::string& name,
                bool enabled) override;
    std::string ButtonFile(Hive hive, const std::string& key);
    std::size_t ButtonImage(const std::string& icon);
};

}  // namespace velkarix
