// Areas that other windows stand on or in: the banner, strips, and the place of the page on view.
#pragma once

#include "forms/Controls.h"
#include "forms/win32/ControlWindow.h"

namespace velkarix {

class PanelWindow : public ControlWindow {
  public:
    PanelWindow(DesktopContext& context, Panel& panel, const ControlPlace& place);
    bool IsGround() const override { return true; }
    void Changed(Aspect aspect) override;
    // The shade of a panel, which its controls stand on.
    static Shade ShadeOf(Panel::Look look);

  protected:
    LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;

  private:
    void Paint(HDC target);

    Panel& panel_;
};

class PageHostWindow : public ControlWindow {
  public:
    PageHostWindow(DesktopContext& context, PageHost& host, const ControlPlace& place);

  protected:
    LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
};

}  // namespace velkarix
