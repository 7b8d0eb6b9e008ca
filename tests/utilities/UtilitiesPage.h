// The utilities page of a running program, and what a user does and reads there.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/machine/TestProgram.h"

namespace velkarix {

class UtilitiesPage : public testing::Test {
  protected:
    // Enters the page, afresh when it was there.
    void Open() {
        if (program.application.forms.Loaded("frmMain") == nullptr) program.Start();
        Leave();
        program.Get<Button>("frmMain", "cmdUtilities").Raise("Click");
    }
    void Leave() { program.Get<Button>("frmMain", "cmdProcess").Raise("Click"); }
    bool Click(const char* control) {
        return program.application.forms.Loaded("frmUtilities")->Find(control)->Raise("Click");
    }
    std::string TextOf(const char* control) {
        return program.application.forms.Loaded("frmUtilities")->Find(control)->Text();
    }
    std::vector<std::string> Told() {
        std::vector<std::string> texts;
        for (const Message& each : program.desktop.messages) texts.push_back(each.text);
        return texts;
    }
    std::vector<std::string> Launches() {
        std::vector<std::string> commands;
        for (const Launch& each : program.machine.shell.Launched()) {
            commands.push_back(each.commandLine);
        }
        return commands;
    }

    TestProgram program;
};

}  // namespace velkarix
