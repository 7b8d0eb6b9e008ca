// A box filled with one colour, reached by Tab. A double click means it, or Space or Enter; a
// single click only gives it the focus.
#pragma once

#include "forms/Controls.h"
#include "forms/win32/ControlWindow.h"

namespace velkarix {

class ColorBoxWindow : public ControlWindow {
  public:
    ColorBoxWindow(DesktopContext& context, ColorBox& box, const ControlPlace& place);
    void Changed(Aspect aspect) override;
    void OnCommand(UINT notification) override;
    void OnDrawItem(const DRAWITEMSTRUCT& item) override;
    bool OnEnter() override;

  protected:
    LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

  private:
    ColorBox& box_;
    bool keyReleased_ = false;  // the last press that ended was a key's, not the mouse's
};

}  // namespace velkarix
