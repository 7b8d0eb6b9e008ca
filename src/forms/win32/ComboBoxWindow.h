// A drop-down list. Its native window is as high as box and dropped list together.
#pragma once

#include "forms/ComboBox.h"
#include "forms/win32/ControlWindow.h"

namespace velkarix {

class ComboBoxWindow : public ControlWindow {
  public:
    ComboBoxWindow(DesktopContext& context, ComboBox& box, const ControlPlace& place);
    // `area` is that of the closed box.
    void Move(const Rect& area) const override;
    void Changed(Aspect aspect) override;
    void OnCommand(UINT notification) override;
    // Both close a dropped list, the first with the entry that is marked there.
    bool OnEnter() override;
    bool OnEscape() override;

  private:
    void ShowSelection() const;
    bool PassToDroppedList(WPARAM key) const;

    ComboBox& box_;
};

}  // namespace velkarix
