// A desktop without a screen: it writes down what is shown and asked, and answers as told.
#pragma once

#include <deque>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "forms/Desktop.h"

namespace velkarix {

class RecordingDesktop : public Desktop {
  public:
    struct ShownMenu {
        std::string owner;  // the form's name
        Menu menu;          // as it stood when it popped up
    };

    // What was shown and asked so far.
    std::string applicationTitle;
    std::vector<std::string> events;  // "create frmMain", "show frmMain", "focus lstvProcess", ...
    std::vector<Message> messages;
    std::vector<ShownMenu> menus;
    std::vector<SaveRequest> saveRequests;
    std::vector<Color> colorsShown;        // what a colour dialog had chosen at first
    std::optional<std::string> clipboard;  // the text that was put on it
    bool clipboardHeld = false;            // by another program
    int yields = 0;
    bool quit = false;

    // What the user does: answers to message boxes in their order (then Ok, or No where asked),
    // the entry chosen in the next popup, what happens in a dialog, in the event loop, in a yield.
    std::deque<MessageAnswer> answers;
    std::optional<std::string> nextMenuChoice;
    std::optional<std::string> nextSaveFile;
    std::optional<Color> nextColor;
    std::function<void(Form&)> onModal;
    std::function<void()> onEventLoop;
    std::function<void()> onYield;

    // Makes the window of a form that is created, and gives its handle; without it there is none.
    std::function<std::uintptr_t(const Form&)> makeWindow;

    void SetApplicationTitle(const std::string& title) override;
    void Create(Form& form, PageHost* host) override;
    void Show(Form& form) override;
    void ShowModal(Form& form, Form& owner) override;
    void Destroy(Form& form) override;
    std::uintptr_t HandleOf(const Form& form) override;
    void Focus(Control& control) override;
    MessageAnswer ShowMessage(const Message& message) override;
    std::optional<std::string> AskSaveFile(Form& owner, const SaveRequest& request) override;
    std::optional<Color> AskColor(Form& owner, Color present) override;
    std::optional<std::string> PopUp(Form& owner, const Menu& menu) override;
    bool SetClipboardText(const std::string& text) override;
    void RunEventLoop() override;
    void Quit() override { quit = true; }
    void YieldEvents() override;

  private:
    std::map<const Form*, std::uintptr_t> handles_;
};

}  // namespace velkarix
