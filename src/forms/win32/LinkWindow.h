// A label that acts: underlined, with a hand for its mouse pointer, reached by Tab.
#pragma once

#include "forms/win32/ButtonWindows.h"

namespace velkarix {

class LinkWindow : public DrawnButtonWindow {
  public:
    LinkWindow(DesktopContext& context, LinkLabel& link, const ControlPlace& place);
    void OnDrawItem(const DRAWITEMSTRUCT& item) override;

  protected:
    LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
};

}  // namespace velkarix
