// The program under test while it runs.
#pragma once

#include <optional>
#include <string>

#include "Install.h"
#include "ListWindow.h"
#include "Process.h"
#include "Window.h"

namespace velkarix::e2e {

class Program {
  public:
    // Starts the program of that installation, with `folder` for the current one (empty: that of
    // the installation). It is closed with its object.
    explicit Program(const Install& install, const std::string& folder = {})
        : Program(install.Folder(), folder) {}
    // Likewise of what is installed in that folder.
    explicit Program(const std::string& installed, const std::string& folder = {});
    ~Program();
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    const Process& OwnProcess() const { return process_; }
    DWORD Id() const { return process_.Id(); }

    // The main window, once it is on screen; none when it doesn't come.
    Window Main() const;
    // A control of the main window or of the page on view, as soon as it is there.
    Window Control(const std::string& name) const;
    ListWindow List(const std::string& name) const { return ListWindow(Control(name)); }
    ListWindow Processes() const { return List("lstvProcess"); }
    // A dialog of that name, as soon as it is there.
    Window Dialog(const std::string& name) const;
    // A message box, as soon as one is there.
    Window Message() const;
    // A dialog of the system's own, as soon as one is there.
    Window SystemDialog() const;
    // The name of the control that has the keyboard focus; empty when none has.
    std::string Focus() const;

    // Clicks a button and comes back when what it does is done; for buttons that open no dialog.
    bool Press(const std::string& name) const;
    // Closes the main window. Gives the exit code once the program has ended; nothing when it
    // doesn't end.
    std::optional<DWORD> Close();

  private:
    Process process_;
};

// The text of a message box.
std::string MessageText(const Window& message);
// Presses the box's button of that number (IDOK, IDYES, IDNO), and waits until the box is gone.
bool Answer(const Window& message, int button);

}  // namespace velkarix::e2e
