// A tab strip of the program under test, read and used from outside.
#pragma once

#include <string>
#include <vector>

#include "Window.h"

namespace velkarix::e2e {

class TabWindow : public Window {
  public:
    TabWindow() = default;
    explicit TabWindow(Window window) : Window(window) {}

    std::vector<std::string> Captions() const;
    int Selected() const;         // from 1; 0 when none is
    RECT TabArea(int tab) const;  // of the tab's caption, on the screen
};

}  // namespace velkarix::e2e
