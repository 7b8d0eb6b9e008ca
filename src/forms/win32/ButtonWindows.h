// Controls that are clicked: command buttons, options, and what they have in common with the ones
// that the program draws itself.
#pragma once

#include "forms/Controls.h"
#include "forms/win32/ControlWindow.h"

namespace velkarix {

class ClickableWindow : public ControlWindow {
  public:
    void OnCommand(UINT notification) override;

  protected:
    using ControlWindow::ControlWindow;
};

class CommandButtonWindow : public ClickableWindow {
  public:
    CommandButtonWindow(DesktopContext& context, Button& button, const ControlPlace& place);
    bool OnEnter() override;
};

class OptionWindow : public ClickableWindow {
  public:
    OptionWindow(DesktopContext& context, OptionButton& option, const ControlPlace& place);
    void Changed(Aspect aspect) override;
    void OnCommand(UINT notification) override;

  private:
    void ShowChoice() const;
    OptionButton& option_;
};

// A button of the system whose looks are the program's.
class DrawnButtonWindow : public ClickableWindow {
  public:
    bool OnEnter() override;

  protected:
    DrawnButtonWindow(DesktopContext& context, Control& control, const ControlPlace& place);
    LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
};

}  // namespace velkarix
