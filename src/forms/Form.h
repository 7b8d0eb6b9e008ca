// A form: its controls, layout, keys and life. Declared once in portable code; a Desktop shows it.
#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "forms/Control.h"
#include "forms/Keys.h"
#include "forms/Layout.h"
#include "forms/Timer.h"

namespace velkarix {

class Button;

enum class FormKind {
    Main,    // the program's window, with system menu and title
    Page,    // stands inside a page host
    Dialog,  // modal above another form
};

// A key that gives a command wherever the focus is in the form, or around it in the page on view.
struct Accelerator {
    KeyStroke stroke;
    std::string handler;  // of a control, which must be on view and enabled
    // The one that must have the focus, or hold what has it; null: none must.
    const Control* within = nullptr;
    Handler command = {};  // in place of the handler, where no control stands for the command
};

class Form {
  public:
    Form(std::string name, std::string caption, FormKind kind);
    virtual ~Form() = default;
    Form(const Form&) = delete;
    Form& operator=(const Form&) = delete;

    const std::string& Name() const { return name_; }
    FormKind Kind() const { return kind_; }
    const std::string& Caption() const { return caption_; }
    void SetCaption(std::string caption);
    const std::string& SkinElement() const { return skinElement_; }
    void SetSkinElement(std::string element) { skinElement_ = std::move(element); }

    // The controls in tab order.
    const std::vector<Control*>& Controls() const { return controls_; }
    Control* Find(std::string_view name) const;  // null when there is none
    const std::vector<Timer*>& Timers() const { return timers_; }
    const Layout& FormLayout() const { return layout_; }
    const std::vector<Accelerator>& Accelerators() const { return accelerators_; }
    // Enter presses the default button where the focused control has no use for it, Esc the
    // cancel button. Null when the form has none.
    Button* DefaultButton() const { return defaultButton_; }
    Button* CancelButton() const { return cancelButton_; }

    // Runs once when the form is loaded, before it is shown, and when it is unloaded.
    virtual void Form_Load() {}
    virtual void Form_Unload() {}

    // Runs a handler by its name, control + event ("cmdRefresh_Click"), whether its control is
    // enabled or not. False when there is no such control or event.
    bool Run(std::string_view handler);
    // The user pressed a key while `focus` had the keyboard (null: nothing did): gives its command,
    // unless the key means something to `focus` itself. Of several handlers of one key that one
    // runs whose control is on view. False when there is none, or its control is disabled.
    bool RaiseKey(const KeyStroke& stroke, const Control* focus = nullptr);

    // The form is to go: its user closed it, or its code did.
    void Close();
    bool Closing() const { return closing_; }

    // Who shows the form hears of changes.
    class View {
      public:
        virtual ~View() = default;
        virtual void CaptionChanged() = 0;
        virtual void CloseAsked() = 0;
    };
    void AttachView(View* view) { view_ = view; }

  protected:
    void SetControls(std::vector<Control*> controls) { controls_ = std::move(controls); }
    void SetTimers(std::vector<Timer*> timers) { timers_ = std::move(timers); }
    // Once all controls are told: what stands in a group of the layout is hidden with it.
    void SetLayout(Layout layout);
    void SetAccelerators(std::vector<Accelerator> keys) { accelerators_ = std::move(keys); }
    void SetButtons(Button* defaultButton, Button* cancelButton);

  private:
    // The control and the event that a handler's name is made of.
    std::pair<Control*, std::string_view> Target(std::string_view handler) const;

    std::string name_;
    std::string caption_;
    std::string skinElement_;
    FormKind kind_;
    bool closing_ = false;
    std::vector<Control*> controls_;
    std::vector<Timer*> timers_;
    Layout layout_;
    std::vector<Accelerator> accelerators_;
    Button* defaultButton_ = nullptr;
    Button* cancelButton_ = nullptr;
    View* view_ = nullptr;
};

}  // namespace velkarix
