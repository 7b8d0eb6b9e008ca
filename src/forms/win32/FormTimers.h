// The timers of a form, as timers of its window.
#pragma once

#include <memory>
#include <vector>

#include "forms/Timer.h"
#include "forms/win32/WindowsHeaders.h"

namespace velkarix {

class FormTimers {
  public:
    FormTimers(HWND window, const std::vector<Timer*>& timers);
    ~FormTimers();
    FormTimers(const FormTimers&) = delete;
    FormTimers& operator=(const FormTimers&) = delete;
    // Stops all; the models may go.
    void Detach();
    // The argument of WM_TIMER.
    void OnTimer(WPARAM id);

  private:
    class NativeTimer;
    std::vector<std::unique_ptr<NativeTimer>> timers_;
};

}  // namespace velkarix
