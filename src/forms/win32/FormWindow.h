// The native window of one form, with the windows of its controls.
#pragma once

#include <memory>

#include "forms/Form.h"
#include "forms/win32/FormControls.h"
#include "forms/win32/FormFocus.h"
#include "forms/win32/FormScroll.h"
#include "forms/win32/FormTimers.h"
#include "forms/win32/Handles.h"

namespace velkarix {

class FormWindow : public Form::View {
  public:
    // A hidden window: inside `parent` when the form is a page, else owned by it.
    FormWindow(DesktopContext& context, Form& form, HWND parent);
    ~FormWindow() override;
    FormWindow(const FormWindow&) = delete;
    FormWindow& operator=(const FormWindow&) = delete;

    // The procedure of the window class FormClass.
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

    HWND Handle() const { return handle_; }
    Form& Model() const { return form_; }
    FormFocus& Focus() { return focus_; }
    const FormControls& Controls() const { return *controls_; }
    // Parts the window from its form, which may go at once; the window is dead and hidden.
    void Detach();
    // The system's colours or sizes have changed, and its fonts if that is said.
    void AppearanceChanged(bool otherFonts);

    void CaptionChanged() override;
    void CloseAsked() override;

  private:
    LRESULT OnMessage(UINT message, WPARAM wParam, LPARAM lParam);
    void OnActivate(bool active);
    void ArrangeControls();
    bool OnScrolling(UINT message, WPARAM wParam);
    void Reveal(HWND control);
    void SetIcons();

    DesktopContext& context_;
    Form& form_;
    HWND handle_ = nullptr;
    bool detached_ = false;
    std::unique_ptr<FormControls> controls_;
    std::unique_ptr<FormTimers> timers_;
    FormFocus focus_;
    FormScroll scroll_;
    OwnedIcon largeIcon_;
    OwnedIcon smallIcon_;
};

}  // namespace velkarix
