// Toolbars of the browser: classes, each named by a value.
#pragma once

#include "browser/ClassList.h"

namespace velkarix {

class ToolbarList : public ClassList {
  public:
    ToolbarList(Application& application, Form& page);
};

}  // namespace velkarix
