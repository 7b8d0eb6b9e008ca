// The desktop of native windows and common controls.
#pragma once

#include <memory>

#include "forms/Desktop.h"

namespace velkarix {

class Win32Desktop : public Desktop {
  public:
    // `instance` is the module that carries the icons; null is the program itself.
    explicit Win32Desktop(void* instance = nullptr);
    ~Win32Desktop() override;
    Win32Desktop(const Win32Desktop&) = delete;
    Win32Desktop& operator=(const Win32Desktop&) = delete;

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
    void Quit() override;
    void YieldEvents() override;

  private:
    struct Windows;
    std::unique_ptr<Windows> windows_;
};

}  // namespace velkarix
