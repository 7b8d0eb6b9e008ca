// A box of text, of one line or several.
#pragma once

#include "forms/Controls.h"
#include "forms/win32/ControlWindow.h"

namespace velkarix {

class TextBoxWindow : public ControlWindow {
  public:
    TextBoxWindow(DesktopContext& context, TextBox& box, const ControlPlace& place);
    void Changed(Aspect aspect) override;
    void OnCommand(UINT notification) override;
    HBRUSH OnColour(HDC) override { return nullptr; }
    // Enter is a line break in a box of several lines that can be written to.
    bool OnEnter() override;

  protected:
    LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

  private:
    void ShowValue();

    TextBox& box_;
    bool showing_ = false;  // the program changes the text, not the user
};

}  // namespace velkarix
