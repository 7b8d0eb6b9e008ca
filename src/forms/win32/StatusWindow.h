// A line of status: however often it changes within one handler, it is drawn when the handler is
// done, or when it is to be seen at once.
#pragma once

#include "forms/Controls.h"
#include "forms/win32/ControlWindow.h"
#include "forms/win32/PendingRefreshes.h"

namespace velkarix {

class StatusWindow : public ControlWindow, private Refreshable {
  public:
    StatusWindow(DesktopContext& context, Label& label, const ControlPlace& place);
    void Detach() override;
    void Changed(Aspect aspect) override;
    void OnDrawItem(const DRAWITEMSTRUCT& item) override;

  private:
    void Refresh() override;
};

}  // namespace velkarix
