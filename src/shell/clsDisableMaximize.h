// Freezes a window's size: no route by title bar, system menu or border changes it afterwards.
#pragma once

#include "platform/WindowSystem.h"

namespace velkarix {

class clsDisableMaximize {
  public:
    explicit clsDisableMaximize(WindowSystem& windows) : windows_(windows) {}
    void DisableMaxButton(WindowHandle window);

  private:
    void DisableMenuItem(WindowHandle window);
    void FixStyle(WindowHandle window);

    WindowSystem& windows_;
};

}  // namespace velkarix
