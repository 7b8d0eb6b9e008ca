// The options page in the running program, with backups of a program that was deleted.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/machine/TestProgram.h"

namespace velkarix {

using RowTexts = std::vector<std::string>;
inline constexpr const char* Path = "C:\\Tools\\bad.exe";

class OptionsPage : public testing::Test {
  protected:
    void Open() {
        if (program.application.forms.Loaded("frmMain") == nullptr) program.Start();
        program.Get<Button>("frmMain", "cmdProcess").Raise("Click");
        program.Get<Button>("frmMain", "cmdOptions").Raise("Click");
    }
    ListView& List() { return program.Get<ListView>("frmOptions", "lstvBackup"); }
    bool Click(const char* control) {
        return program.application.forms.Loaded("frmOptions")->Find(control)->Raise("Click");
    }
    void DoubleClick(const char* box) {
        program.Get<ColorBox>("frmOptions", box).Raise("DblClick");
    }
    std::string Setting(const char* key) {
        return program.application.settings.ReadIni("Main", key, "(missing)");
    }
    void AddBackup(const std::string& stem, const std::string& line,
                   const std::string& content = "the program") {
        program.AddInstalledFile("Backup\\" + stem + ".prc").Content(line);
        program.AddInstalledFile("Backup\\" + stem + ".bup").Content(content);
    }
    std::string Content(const std::string& path) {
        return program.machine.disk.ContentOf(path).value_or("(no file)");
    }
    std::string Copy(const std::string& stem) {
        return Content("C:\\Velkarix\\Backup\\" + stem + ".bup");
    }
    RowTexts Told() {
        RowTexts texts;
        for (const Message& each : program.desktop.messages) texts.push_back(each.text);
        return texts;
    }
    void SelectFirst() { List().UserSelect(&List().Row(0)); }

    TestProgram program;
    const std::string record = std::string(Path) + "\x01" + "6/1/2004\r\n";
};

}  // namespace velkarix
