// Pluggable protocols: filters of content types and handlers of schemes.
#pragma once

#include "browser/ClassList.h"

namespace velkarix {

class ProtocolList : public ClassList {
  public:
    ProtocolList(Application& application, Form& page);

  private:
    void AddRow(const ItemPlace& place, const std::string& holder, const std::string& name,
                bool enabled) override;
};

}  // namespace velkarix
