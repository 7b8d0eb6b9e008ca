// Brings the instance of the program that runs already to the front.
#pragma once

#include <string>

#include "forms/Desktop.h"
#include "platform/WindowSystem.h"

namespace velkarix {

class clsPrevInstance {
  public:
    clsPrevInstance(WindowSystem& windows, Desktop& desktop)
        : windows_(windows), desktop_(desktop) {}
    // `title` is the application title, which the other instance's hidden window bears. Nothing
    // happens when no such window is found.
    void ShowApp(const std::string& title);

  private:
    WindowSystem& windows_;
    Desktop& desktop_;
};

}  // namespace velkarix
