// The whole program on a machine in memory and a desktop without a screen.
#pragma once

#include <string>

#include "DefineForms.h"
#include "shell/Application.h"
#include "shell/modMain.h"
#include "tests/machine/MemoryMachine.h"
#include "tests/machine/RecordingDesktop.h"

namespace velkarix {

// The program once it runs, on a machine that may have seen it run before.
class RunningProgram {
  public:
    explicit RunningProgram(MemoryMachine& machine) : application(machine.Parts(), desktop) {
        desktop.makeWindow = [&machine](const Form& form) {
            return machine.windows.Add("VelkarixForm", form.Caption()).handle;
        };
        DefineForms(application);
    }

    // The control of a loaded form; a test ends at once when there is none.
    template <typename ControlClass>
    ControlClass& Get(const std::string& form, const std::string& control) {
        return dynamic_cast<ControlClass&>(*application.forms.Loaded(form)->Find(control));
    }
    // Loads the main window, as Main does.
    void Start() { application.forms.Show("frmMain"); }

    RecordingDesktop desktop;
    Application application;
};

struct OwnMachine {
    MemoryMachine machine;
};

// The program on a machine of its own.
class TestProgram : public OwnMachine, public RunningProgram {
  public:
    explicit TestProgram(NamedSystem system = NamedSystem::WindowsXp)
        : OwnMachine{MemoryMachine(system)}, RunningProgram(machine) {}

    // A file in the program's folder.
    MemoryEntry& AddInstalledFile(const std::string& name) {
        return machine.AddFile(InstallFolder + ("\\" + name));
    }
    std::string InstalledText(const std::string& name) {
        return machine.disk.ContentOf(InstallFolder + ("\\" + name)).value_or("");
    }

    static constexpr const char* InstallFolder = "C:\\Velkarix";
};

}  // namespace velkarix
