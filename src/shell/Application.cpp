#include "shell/Application.h"

#include "base/Text.h"

namespace velkarix {

std::string ApplicationVersion() {
    return std::to_string(ApplicationMajor) + "." + std::to_string(ApplicationMinor);
}

Application::Application(const Machine& machineToUse, Desktop& desktopToUse)
    : machine(machineToUse),
      desktop(desktopToUse),
      settings(machine),
      progress(machine.clock),
      registry(machine, desktop, ApplicationTitle, &unread),
      menus(desktop),
      forms(desktop) {}

MessageAnswer Application::Tell(MessageIcon icon, const std::string& text, MessageButtons buttons) {
    return desktop.ShowMessage({text, ApplicationTitle, icon, buttons});
}

WindowHandle Application::MainWindow() const {
    const Form* main = forms.Loaded("frmMain");
    return main == nullptr ? 0 : desktop.HandleOf(*main);
}

void Application::EndWithFault(int number, const std::string& description) {
    ended_ = true;
    Tell(MessageIcon::Critical, "Run-time error '" + std::to_string(number) + "':" +
                                    std::string(LineBreak) + std::string(LineBreak) + description);
    desktop.Quit();
}

}  // namespace velkarix
