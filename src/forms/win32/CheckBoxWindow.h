// A box with a mark that the user sets and takes away.
#pragma once

#include "forms/win32/ButtonWindows.h"

namespace velkarix {

class CheckBoxWindow : public ClickableWindow {
  public:
    CheckBoxWindow(DesktopContext& context, CheckBox& box, const ControlPlace& place);
    void Changed(Aspect aspect) override;

  private:
    void ShowMark() const;
    CheckBox& box_;
};

}  // namespace velkarix
