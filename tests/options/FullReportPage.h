// The options page of a program on a machine in memory, where the full report is asked for.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "tests/machine/TestProgram.h"
#include "tests/options/FullReportMachine.h"
#include "tests/options/FullReportTexts.h"

namespace velkarix {

inline constexpr const char* ReportFile = "C:\\Full.txt";
inline constexpr int Blocks = 12;  // of all areas; events are served before each
inline constexpr const char* AreaBoxes[] = {"chkProcess", "chkIE", "chkStartup", "chkAddremove"};

class FullReportPage : public testing::Test {
  protected:
    using Texts = std::vector<std::string>;

    void TearDown() override {
        EXPECT_EQ(Machine().registry.OpenKeyCount(), 0u);
        EXPECT_EQ(Machine().files.OpenFileCount(), 0u);
        EXPECT_EQ(Machine().files.OpenSearchCount(), 0u);
        EXPECT_EQ(Machine().shell.OpenIconCount(), 0u);
        EXPECT_EQ(Machine().processes.OpenHandleCount(), 0u);
    }

    MemoryMachine& Machine() { return program.machine; }
    // Starts the program and enters the page.
    void Open() {
        program.Start();
        PressMain("cmdOptions");
    }
    void PressMain(const char* button) { program.Get<Button>("frmMain", button).Raise("Click"); }
    Form* Loaded(const char* form) { return program.application.forms.Loaded(form); }
    Button& ReportButton() { return program.Get<Button>("frmOptions", "cmdReport"); }
    void Tick(const Texts& boxes) {
        for (const std::string& box : boxes) {
            program.Get<CheckBox>("frmOptions", box).Raise("Click");
        }
    }
    void TickAll() { Tick({std::begin(AreaBoxes), std::end(AreaBoxes)}); }
    // Gives the command, and says where the report goes.
    void Generate() {
        program.desktop.nextSaveFile = ReportFile;
        ReportButton().Raise("Click");
    }
    // The same on a page that has just been entered, for these areas.
    void GenerateFor(const Texts& boxes) {
        Open();
        Tick(boxes);
        Generate();
    }
    // What the user does in the event loop when the report serves it for the time of that number.
    void InYield(int number, const std::function<void()>& happens) {
        program.desktop.onYield = [this, number, happens] {
            if (program.desktop.yields == number) happens();
        };
    }

    std::string Report() { return Machine().disk.ContentOf(ReportFile).value_or("(no file)"); }
    std::string Opened() {
        return Machine().shell.Opened().empty() ? "" : Machine().shell.Opened().back().file;
    }
    std::string Setting(const char* key) {
        return program.application.settings.ReadIni("Main", key, "(missing)");
    }
    Texts Messages() {
        Texts texts;
        for (const Message& message : program.desktop.messages) texts.push_back(message.text);
        return texts;
    }

    TestProgram program;
};

}  // namespace velkarix
