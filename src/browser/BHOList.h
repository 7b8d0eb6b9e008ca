// Browser helper objects: classes that the browser loads into itself at each start, each named by a
// key.
#pragma once

#include "browser/ClassList.h"

namespace velkarix {

class BHOList : public ClassList {
  public:
    BHOList(Application& application, Form& page);
};

}  // namespace velkarix
