// A bar of progress, as the native one.
#pragma once

#include "forms/ProgressBar.h"
#include "forms/win32/ControlWindow.h"

namespace velkarix {

class ProgressBarWindow : public ControlWindow {
  public:
    ProgressBarWindow(DesktopContext& context, ProgressBar& bar, const ControlPlace& place);
    void Changed(Aspect aspect) override;

  private:
    void ShowPercent() const;

    ProgressBar& bar_;
};

}  // namespace velkarix
