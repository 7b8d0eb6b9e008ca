// The windows of a form's controls.
#pragma once

#include <memory>
#include <vector>

#include "forms/Form.h"
#include "forms/win32/ControlWindow.h"

namespace velkarix {

class FormControls {
  public:
    // Makes them inside `parent`, in tab order.
    FormControls(DesktopContext& context, const Form& form, HWND parent);
    // Places them in a form that has that place in its window.
    void Arrange(const Rect& inside) const;
    // Null when the control isn't of this form.
    ControlWindow* WindowOf(const Control& control) const;
    // The window of the form's default button; null when it has none.
    HWND DefaultButton() const;
    void Detach() const;
    void AppearanceChanged(bool otherFonts) const;

  private:
    DesktopContext& context_;
    const Form& form_;
    std::vector<std::unique_ptr<ControlWindow>> windows_;
};

// Hands what native controls tell and ask their parent window to the control itself. False when
// the message is no such message, or its control has no answer; else `result` is the answer.
bool ServeControlMessage(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result);

}  // namespace velkarix
