// Serves the messages of all windows. Loops stand one inside the other while dialogs are open.
#pragma once

#include <functional>

#include "forms/win32/FormWindows.h"

namespace velkarix {

class EventLoop {
  public:
    EventLoop(DesktopContext& context, const FormWindows& forms)
        : context_(context), forms_(forms) {}
    // Serves until `over` says so, or Quit was called.
    void Run(const std::function<bool()>& over);
    // Serves what waits now.
    void RunWaiting();
    // Ends all loops, also those that come.
    void Quit();

  private:
    void Serve(MSG& message);
    bool ServeKeys(MSG& message);

    DesktopContext& context_;
    const FormWindows& forms_;
    bool quit_ = false;
};

}  // namespace velkarix
