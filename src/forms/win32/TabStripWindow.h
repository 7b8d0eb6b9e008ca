// A row of tabs, as the native tab control. Only the tabs and the edge around the area under them
// are the control's window: the area is cut out, so that what stands there is never painted over,
// and the strip keeps its place in the tab order.
#pragma once

#include "forms/TabStrip.h"
#include "forms/win32/ControlWindow.h"

namespace velkarix {

class TabStripWindow : public ControlWindow {
  public:
    TabStripWindow(DesktopContext& context, TabStrip& strip, const ControlPlace& place);
    void Changed(Aspect aspect) override;
    LRESULT OnNotify(NMHDR& header) override;

  protected:
    LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

  private:
    void ShowSelection() const;
    void CutOutInside() const;
    int TabAt(LPARAM point) const;  // from 1; 0 when there is none

    TabStrip& strip_;
};

}  // namespace velkarix
