// The windows of all created forms, and of destroyed ones that can't go yet.
#pragma once

#include <memory>
#include <vector>

#include "forms/win32/FormWindow.h"

namespace velkarix {

class FormWindows {
  public:
    explicit FormWindows(DesktopContext& context) : context_(context) {}
    ~FormWindows();
    FormWindows(const FormWindows&) = delete;
    FormWindows& operator=(const FormWindows&) = delete;

    FormWindow& Add(Form& form, HWND parent);
    // Parts the form from its window. A handler may do so from inside the procedure of that very
    // window, so the window itself goes when no procedure is under way.
    void Remove(FormWindow& window);
    void EndRemoved();

    // Each is null when there is none.
    FormWindow* Of(const Form& form) const;
    FormWindow* WithHandle(HWND handle) const;
    FormWindow* Main() const;
    // The page on view inside a top-level form.
    FormWindow* PageIn(const FormWindow& form) const;
    ControlWindow* WindowOf(const Control& control) const;

    // The system's colours or sizes have changed, and its fonts if that is said.
    void AppearanceChanged(bool otherFonts) const;

  private:
    DesktopContext& context_;
    std::vector<std::unique_ptr<FormWindow>> windows_;
    std::vector<std::unique_ptr<FormWindow>> removed_;
};

}  // namespace velkarix
