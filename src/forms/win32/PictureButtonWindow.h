// A button that shows the picture of its skin element above its text, and stays marked while its
// page is on view.
#pragma once

#include <string>

#include "forms/win32/ButtonWindows.h"
#include "forms/win32/Handles.h"

namespace velkarix {

class PictureButtonWindow : public DrawnButtonWindow {
  public:
    PictureButtonWindow(DesktopContext& context, Button& button, const ControlPlace& place);
    void Changed(Aspect aspect) override;
    void OnDrawItem(const DRAWITEMSTRUCT& item) override;

  protected:
    LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

  private:
    Shade ShadeFor(UINT state) const;
    void SetHot(bool hot);
    void LoadIcon();
    int PictureSize() const { return Context().metrics.PictureSize(button_.ButtonLook()); }

    Button& button_;
    OwnedIcon icon_;
    bool hot_ = false;
};

}  // namespace velkarix
