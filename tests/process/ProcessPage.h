// The process page of a program on a machine in memory, with what its tests ask of it.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "process/ProcessColumns.h"
#include "process/frmProcess.h"
#include "tests/machine/TestProgram.h"

namespace velkarix {

// The MD5 of the contents that the tests give to their files.
inline constexpr const char* Md5OfAbc = "900150983cd24fb0d6963f7d28e17f72";
inline constexpr const char* Md5OfA = "0cc175b9c0f1b6a831c399e269772661";

class ProcessPage : public testing::Test {
  protected:
    frmProcess& Page() {
        return static_cast<frmProcess&>(*program.application.forms.Loaded("frmProcess"));
    }
    ListView& List() { return program.Get<ListView>("frmProcess", "lstvProcess"); }
    bool Enabled(const char* control) { return Page().Find(control)->Enabled(); }
    bool Click(const char* control) { return Page().Find(control)->Raise("Click"); }

    MemoryEntry& Run(ProcessId id, const std::string& path, const std::string& content) {
        program.machine.AddProcess(id, path);
        return program.machine.AddFile(path).Content(content);
    }
    void Settings(const std::string& text) {
        program.AddInstalledFile("Settings.ini").Content(text);
    }
    void ShowAll() { Settings("[Main]\r\nFilter=0\r\n"); }
    // The names of the rows in the shown order.
    std::vector<std::string> RowNames() {
        std::vector<std::string> names;
        for (std::size_t i = 0; i < List().RowCount(); ++i) names.push_back(List().Row(i).Text(0));
        return names;
    }
    ListRow* RowNamed(const std::string& name) {
        for (std::size_t i = 0; i < List().RowCount(); ++i) {
            if (List().Row(i).Text(0) == name) return &List().Row(i);
        }
        return nullptr;
    }
    // Ticks the row as a user would.
    void Tick(const std::string& name) { List().UserCheck(*RowNamed(name), true); }
    // Pages are left and entered by their buttons.
    void LeaveAndComeBack() {
        program.Get<Button>("frmMain", "cmdOptions").Raise("Click");
        program.Get<Button>("frmMain", "cmdProcess").Raise("Click");
    }

    TestProgram program;
};

using RowTexts = std::vector<std::string>;

}  // namespace velkarix
