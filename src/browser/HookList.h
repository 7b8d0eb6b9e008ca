// Classes that the browser asks when an address can't be resolved, each named by a value.
#pragma once

#include "browser/ClassList.h"

namespace velkarix {

class HookList : public ClassList {
  public:
    HookList(Application& application, Form& page);
};

}  // namespace velkarix
