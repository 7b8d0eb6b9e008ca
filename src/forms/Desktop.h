// The desktop that forms are shown on, and what the program asks its user outside of its forms.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "base/Color.h"
#include "forms/Controls.h"
#include "forms/Form.h"
#include "forms/Menu.h"

namespace velkarix {

enum class MessageIcon { None, Critical, Question, Information };
enum class MessageButtons { Ok, YesNo };
enum class MessageAnswer { Ok, Yes, No };

struct Message {
    std::string text;
    std::string title;
    MessageIcon icon = MessageIcon::Information;
    MessageButtons buttons = MessageButtons::Ok;
};

// How a file to write is asked for. An existing one is only given after a question.
struct SaveRequest {
    std::string filterName;  // "Text File (*.txt)"
    std::string pattern;     // "*.txt"
    std::string fileName;    // what is proposed
};

class Desktop {
  public:
    virtual ~Desktop() = default;

    // The caption of the hidden window that stands for this instance of the program and owns its
    // main window. Another instance finds it by this caption and ApplicationWindowClass.
    virtual void SetApplicationTitle(const std::string& title) = 0;

    // Realises a form as a hidden window: inside `host` when it is a page, else on its own.
    virtual void Create(Form& form, PageHost* host) = 0;
    virtual void Show(Form& form) = 0;
    // Shows a created dialog above `owner`, which is disabled meanwhile, and comes back when the
    // dialog closes.
    virtual void ShowModal(Form& form, Form& owner) = 0;
    virtual void Destroy(Form& form) = 0;
    // The form's window, for the calls of WindowSystem; 0 when it isn't created.
    virtual std::uintptr_t HandleOf(const Form& form) = 0;
    virtual void Focus(Control& control) = 0;

    virtual MessageAnswer ShowMessage(const Message& message) = 0;
    // The full path of the file, or nothing when the user cancels.
    virtual std::optional<std::string> AskSaveFile(Form& owner, const SaveRequest& request) = 0;
    // The colour that the user chooses, with `present` chosen at first; nothing on cancel.
    virtual std::optional<Color> AskColor(Form& owner, Color present) = 0;
    // Shows `menu` at the mouse, or beside the focused row when a key asked for it. Gives the
    // name of the chosen entry, or nothing.
    virtual std::optional<std::string> PopUp(Form& owner, const Menu& menu) = 0;

    // Puts text on the clipboard, in place of what is there. False when that failed, mostly since
    // another program has it open.
    virtual bool SetClipboardText(const std::string& text) = 0;

    // Serves events until the main form is closed or Quit is called.
    virtual void RunEventLoop() = 0;
    virtual void Quit() = 0;
    // Serves the events that wait now, and comes back.
    virtual void YieldEvents() = 0;
};

// The window class of the hidden application window.
inline constexpr const char* ApplicationWindowClass = "VelkarixApplication";

}  // namespace velkarix
