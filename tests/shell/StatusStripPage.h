// The whole program with things of each list on its machine, for tests of the foot of its main
// window: what it says at rest, and what is seen of it while the program is busy.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <string>
#include <vector>

#include "forms/ProgressBar.h"
#include "tests/machine/TestProgram.h"

namespace velkarix {

inline constexpr const char* Domains =
    "Software\\Microsoft\\Windows\\CurrentVersion\\Internet Settings\\ZoneMap\\Domains\\";
inline constexpr const char* RunValues = "Software\\Microsoft\\Windows\\CurrentVersion\\Run";
inline constexpr const char* Uninstall =
    "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\";

class StatusStripTest : public testing::Test {
  protected:
    void AddProcess(int id, const std::string& path, const std::string& content) {
        program.machine.AddFile(path).Content(content);
        program.machine.AddProcess(static_cast<ProcessId>(id), path);
    }
    void AddDomain(const std::string& name, bool enabled = true) {
        const std::string live = Domains + name;
        const std::string held = "Software\\Velkarix\\Disabled\\Domains\\" + name;
        program.machine.SetDword(Hive::CurrentUser, enabled ? live : held, "*", 4);
    }
    void AddRunValue(const std::string& name) {
        program.machine.SetValue(Hive::CurrentUser, RunValues, name, "C:\\gone.exe");
    }
    void AddApplication(const std::string& key) {
        for (const char* name : {"DisplayName", "UninstallString"}) {
            program.machine.SetValue(Hive::LocalMachine, Uninstall + key, name, key);
        }
    }
    std::string Status() { return program.Get<Label>("frmMain", "lblStatus").Text(); }
    ProgressBar& Bar() { return program.Get<ProgressBar>("frmMain", "barProgress"); }
    void ClickPage(const char* button) { Click("frmMain", button); }
    void Click(const char* form, const char* button) {
        EXPECT_TRUE(program.application.forms.Loaded(form)->Find(button)->Raise("Click"));
    }
    ListView& List(const char* form, const char* list) { return program.Get<ListView>(form, list); }

    TestProgram program;
};

// What is on the screen whenever something is to be seen at once.
class BusyTest : public StatusStripTest, protected ControlView {
  protected:
    // From now on, each look at the ticks finds a tenth of a second gone by.
    void Watch() {
        program.machine.clock.SetTickStep(100);
        program.Get<Label>("frmMain", "lblStatus").AttachView(this);
    }
    void EndWatch() { program.Get<Label>("frmMain", "lblStatus").AttachView(nullptr); }
    void Changed(Aspect aspect) override {
        if (aspect == Aspect::Now) {
            seen.push_back(Status());
            percents[Status()] = Bar().Percent();
        }
        if (aspect == Aspect::Text) ++changes;
    }
    bool Saw(const std::string& text) const {
        return std::find(seen.begin(), seen.end(), text) != seen.end();
    }

    std::vector<std::string> seen;
    std::map<std::string, int> percents;  // of the bar, with each text
    int changes = 0;                      // of the text, whether it was to be seen at once or not
};

}  // namespace velkarix
