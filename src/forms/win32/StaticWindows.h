// Controls that only show: labels, frames and pictures.
#pragma once

#include "forms/Controls.h"
#include "forms/win32/ControlWindow.h"
#include "forms/win32/Handles.h"

namespace velkarix {

class LabelWindow : public ControlWindow {
  public:
    LabelWindow(DesktopContext& context, Label& label, const ControlPlace& place);
    void FontsChanged() override;

  private:
    Label& label_;
};

class FrameWindow : public ControlWindow {
  public:
    FrameWindow(DesktopContext& context, Frame& frame, const ControlPlace& place);
    bool IsGround() const override { return true; }

  protected:
    LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
};

class PictureWindow : public ControlWindow {
  public:
    PictureWindow(DesktopContext& context, PictureBox& box, const ControlPlace& place);
    void Changed(Aspect aspect) override;
    void OnDrawItem(const DRAWITEMSTRUCT& item) override;

  private:
    void LoadIcon();
    int PictureSize() const { return Context().dpi.Pixels(box_.PictureSize()); }

    PictureBox& box_;
    OwnedIcon icon_;
};

}  // namespace velkarix
