// The native window of one control. The kinds of controls derive from it; what all have in common
// (name, text, font, enabled, visible, their part of the messages) is here.
#pragma once

#include <optional>

#include "forms/Control.h"
#include "forms/Layout.h"
#include "forms/win32/DesktopContext.h"
#include "forms/win32/ToolTipWindow.h"

namespace velkarix {

// Where a control is made.
struct ControlPlace {
    HWND parent = nullptr;
    Rect area;                   // pixels in the parent
    int id = 0;                  // unique among the parent's controls
    bool startsGroup = true;     // the arrow keys don't reach over the start of a group
    Shade ground = Shade::Face;  // what the control stands on
};

// What a kind of control is made of.
struct NativeKind {
    const char* windowClass;
    DWORD style;
    DWORD extendedStyle = 0;
    // Whether screen readers call it by the label before it and not by its own text.
    bool namedByLabel = false;
};

class ControlWindow : public ControlView {
  public:
    ~ControlWindow() override = default;
    ControlWindow(const ControlWindow&) = delete;
    ControlWindow& operator=(const ControlWindow&) = delete;

    // The object behind a window; null for windows of others, and once it is detached.
    static ControlWindow* From(HWND window);

    HWND Handle() const { return handle_; }
    Control& Model() const { return model_; }
    virtual void Move(const Rect& area) const;
    // Behind all other controls of the form.
    void SendToBack() const;
    // Parts the window from its control, which may go at once; the window is dead but stands.
    virtual void Detach();

    void Changed(Aspect aspect) override;

    // The parent's messages about this control. What they do may be the end of its form: nothing
    // of the control is touched after a handler has run.
    virtual void OnCommand(UINT) {}
    virtual LRESULT OnNotify(NMHDR&) { return 0; }
    virtual void OnDrawItem(const DRAWITEMSTRUCT&) {}
    // Sets the colours of a standard control. Gives its ground; null leaves all to the system.
    virtual HBRUSH OnColour(HDC context);

    // The user pressed Enter here: true when that meant something to the control.
    virtual bool OnEnter() { return false; }
    virtual bool OnEscape() { return false; }  // likewise, of Esc
    // The system's colours have changed.
    virtual void ColoursChanged();
    // The fonts of the desktop are others.
    virtual void FontsChanged();
    // Whether other controls of the form stand on this one.
    virtual bool IsGround() const { return false; }

  protected:
    ControlWindow(DesktopContext& context, Control& model, const ControlPlace& place,
                  const NativeKind& kind);
    // The window's own messages; what isn't handled goes to the native control.
    virtual LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam);

    DesktopContext& Context() const { return context_; }
    Shade Ground() const { return ground_; }
    LRESULT Send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;
    RECT ClientArea() const;
    void ShowName() const;  // to screen readers, where a label does so

  private:
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    void PassFocusOn() const;
    HWND MakeNameLabel(const ControlPlace& place) const;

    DesktopContext& context_;
    Control& model_;
    Shade ground_;
    HWND nameLabel_;  // null when the window's own text is its name
    HWND handle_;
    WNDPROC native_;
    std::optional<ToolTipWindow> toolTip_;
};

}  // namespace velkarix
