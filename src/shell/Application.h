// The running program: the machine and the desktop that it works on, its services, and the state
// that all pages share while it runs.
#pragma once

#include <string>

#include "forms/Desktop.h"
#include "forms/FormSet.h"
#include "platform/Machine.h"
#include "registry/UnreadPlaces.h"
#include "registry/modRegistry.h"
#include "shell/Appearance.h"
#include "shell/DefinitionList.h"
#include "shell/Progress.h"
#include "shell/Settings.h"
#include "shell/frmMenu.h"

namespace velkarix {

inline constexpr const char* ApplicationTitle = "Velkarix";
inline constexpr int ApplicationMajor = 1;
inline constexpr int ApplicationMinor = 0;

// The version as windows and reports show it: major, a full stop, minor.
std::string ApplicationVersion();

class Application {
  public:
    Application(const Machine& machineToUse, Desktop& desktopToUse);

    // Shows a message box with the program's title.
    MessageAnswer Tell(MessageIcon icon, const std::string& text,
                       MessageButtons buttons = MessageButtons::Ok);
    // The handle of the main window, for calls of the shell; 0 while there is none.
    WindowHandle MainWindow() const;
    // A fault that nothing handles: shows its number and description, then ends the program.
    void EndWithFault(int number, const std::string& description);
    bool Ended() const { return ended_; }

    Machine machine;
    Desktop& desktop;
    Settings settings;
    UnreadPlaces unread;
    Progress progress;
    modRegistry registry;
    frmMenu menus;

    // Filled at start.
    Appearance appearance;
    std::string WindowsName;
    std::string DisabledRoot;  // of the holding area; ends in a backslash
    DefinitionList SusCLSIDList;
    DefinitionList SystemProcessList;
    DefinitionList SusProcessList;
    DefinitionList SusInstallList;

    bool itemChangeRuns = false;  // see shell/ItemChange.h

    // Last, so that forms go before what they use.
    FormSet forms;

  private:
    bool ended_ = false;
};

}  // namespace velkarix
