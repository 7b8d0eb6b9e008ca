// The program on the real machine, as if it were installed in a folder of its own, mostly with a
// desktop whose windows aren't there.
#pragma once

#include <string>

#include "DefineForms.h"
#include "OwnFolder.h"
#include "platform/win32/Win32Clock.h"
#include "platform/win32/Win32Machine.h"
#include "shell/Application.h"
#include "tests/machine/RecordingDesktop.h"

namespace velkarix {

// The machine's facts, but for where the program is: what it keeps beside itself goes there.
class FactsWithFolder : public Win32SystemFacts {
  public:
    explicit FactsWithFolder(const std::string& folder) : program_(folder + "\\Velkarix.exe") {}
    std::string GetModuleFileNameA() override { return program_; }

  private:
    std::string program_;
};

// The machine's clock, whose ticks may stand still: then no time goes by that the user waits.
class ClockThatStops : public Win32Clock {
  public:
    std::uint32_t GetTickCount() override { return stands ? 0 : Win32Clock::GetTickCount(); }
    bool stands = false;
};

template <typename DesktopClass>
struct BenchProgramOn {
    BenchProgramOn() {
        DefineForms(application);
        application.DisabledRoot = "Software\\Velkarix\\Disabled\\";
        application.WindowsName = "Windows XP";
    }

    // The control of a loaded form.
    template <typename ControlClass>
    ControlClass& Get(const char* form, const char* control) {
        return dynamic_cast<ControlClass&>(*application.forms.Loaded(form)->Find(control));
    }

    Machine MachineOfProgram() {
        const Machine real = win32.Parts();
        return {real.registry,
                real.profileFiles,
                real.versionResources,
                real.files,
                clock,
                real.processes,
                real.token,
                real.shell,
                real.shortcuts,
                facts,
                real.windows,
                real.cryptography};
    }

    OwnFolder folder{"Program"};
    FactsWithFolder facts{folder.Path()};
    Win32Machine win32;
    ClockThatStops clock;
    DesktopClass desktop;
    Application application{MachineOfProgram(), desktop};
};

using BenchProgram = BenchProgramOn<RecordingDesktop>;

}  // namespace velkarix
