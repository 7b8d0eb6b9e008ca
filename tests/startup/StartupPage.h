// The startup page of a program on a machine in memory, with what its tests ask of it. A test puts
// values and shortcuts there, opens the page and looks at the rows.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "startup/StartupColumns.h"
#include "startup/frmStartup.h"
#include "tests/machine/ControlGestures.h"
#include "tests/machine/TestProgram.h"

namespace velkarix {

using RowTexts = std::vector<std::string>;

inline constexpr const char* LiveRun = "Software\\Microsoft\\Windows\\CurrentVersion\\Run";
inline constexpr const char* HeldRun = "Software\\Velkarix\\Disabled\\Run";
inline constexpr const char* ShellFoldersKey =
    "Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Shell Folders";

// The folders of shortcuts, and where those are kept that are switched off.
inline constexpr const char* LiveLM = "C:\\All Users\\Startup";
inline constexpr const char* LiveCU = "C:\\Anna\\Startup";
inline constexpr const char* HeldLM = "C:\\Velkarix\\DLMStartup";
inline constexpr const char* HeldCU = "C:\\Velkarix\\DCUStartup";

// What a file's name begins with that is kept while the clock stands at its first moment.
inline constexpr const char* KeptStem = "C:\\Velkarix\\Backup\\6_1_153_12_0_0_";

inline constexpr const char* Md5OfAbc = "900150983cd24fb0d6963f7d28e17f72";

// Makes the two folders and has the registry name them.
inline void PutStartupFolders(MemoryMachine& machine) {
    machine.AddFolder(LiveLM);
    machine.AddFolder(LiveCU);
    machine.SetValue(Hive::LocalMachine, ShellFoldersKey, "Common Startup", LiveLM);
    machine.SetValue(Hive::CurrentUser, ShellFoldersKey, "Startup", LiveCU);
}

inline MemoryEntry& PutShortcut(MemoryMachine& machine, const std::string& folder,
                                const std::string& name, const std::string& target,
                                const std::string& arguments = {}, const std::string& icon = {}) {
    return machine.AddFile(folder + "\\" + name).Shortcut({target, arguments, icon});
}

class StartupPage : public testing::Test {
  protected:
    StartupPage() { PutStartupFolders(Machine()); }
    void TearDown() override {
        EXPECT_EQ(Machine().registry.OpenKeyCount(), 0u);
        EXPECT_EQ(Machine().files.OpenFileCount(), 0u);
        EXPECT_EQ(Machine().files.OpenSearchCount(), 0u);
        EXPECT_EQ(Machine().shell.OpenIconCount(), 0u);
        EXPECT_FALSE(program.application.itemChangeRuns);
    }

    // Starts the program and enters the page.
    void Open() {
        program.Start();
        Machine().Journal().Clear();
        program.Get<Button>("frmMain", "cmdStartup").Raise("Click");
    }
    void LeaveAndComeBack() {
        program.Get<Button>("frmMain", "cmdOptions").Raise("Click");
        program.Get<Button>("frmMain", "cmdStartup").Raise("Click");
    }
    frmStartup& Page() {
        return static_cast<frmStartup&>(*program.application.forms.Loaded("frmStartup"));
    }
    ListView& List() { return program.Get<ListView>("frmStartup", "lstvStartup"); }
    TreeView& Tree() { return program.Get<TreeView>("frmStartup", "tvwStartup"); }
    bool Enabled(const char* control) { return Page().Find(control)->Enabled(); }
    // By its handler, so also where the button is disabled.
    bool Click(const std::string& control) { return Page().Run(control + "_Click"); }
    void ClickNode(const char* key) { Tree().UserSelect(*Tree().Find(key)); }
    std::string Caption() { return Page().Find("fmStartup")->Text(); }

    // ---- What is on the machine

    MemoryMachine& Machine() { return program.machine; }
    void SetRun(Hive hive, const std::string& name, const std::string& command) {
        Machine().SetValue(hive, LiveRun, name, command);
    }
    void SetHeld(Hive hive, const std::string& name, const std::string& command) {
        Machine().SetValue(hive, HeldRun, name, command);
    }
    std::string TextOf(const std::string& path) {
        return Machine().disk.ContentOf(path).value_or("(no file)");
    }
    bool HasFile(const std::string& path) { return Machine().disk.Exists(path); }
    // Each call that changes something, with its arguments.
    RowTexts Changes() {
        constexpr const char* Changing[] = {"RegCreateKeyA",    "RegSetValueExA", "RegDeleteKeyA",
                                            "RegDeleteValueA",  "CopyFileA",      "DeleteFileA",
                                            "CreateDirectoryA", "WriteFile"};
        RowTexts changes;
        for (const Call& call : Machine().Journal().Calls()) {
            const bool changing = std::find(std::begin(Changing), std::end(Changing), call.name) !=
                                  std::end(Changing);
            if (changing) changes.push_back(call.name + " " + call.arguments);
        }
        return changes;
    }

    // ---- What is shown

    // One column of each row in the shown order.
    RowTexts ColumnOf(std::size_t column) {
        RowTexts texts;
        for (std::size_t i = 0; i < List().RowCount(); ++i) {
            texts.push_back(List().Row(i).Text(column));
        }
        return texts;
    }
    RowTexts Names() { return ColumnOf(startupColumn::Name); }
    RowTexts RowAt(std::size_t position) {
        RowTexts texts;
        for (std::size_t column = 0; column < List().Columns().size(); ++column) {
            texts.push_back(List().Row(position).Text(column));
        }
        return texts;
    }
    // "name, location, enabled" of each row in the shown order.
    RowTexts Items() {
        RowTexts items;
        for (std::size_t i = 0; i < List().RowCount(); ++i) {
            const ListRow& row = List().Row(i);
            items.push_back(row.Text(startupColumn::Name) + ", " +
                            row.Text(startupColumn::Location) + ", " +
                            row.Text(startupColumn::Enabled));
        }
        return items;
    }
    // The first row of that name; null when there is none.
    ListRow* RowNamed(const std::string& name) {
        for (std::size_t i = 0; i < List().RowCount(); ++i) {
            if (List().Row(i).Text(startupColumn::Name) == name) return &List().Row(i);
        }
        return nullptr;
    }
    void Tick(const std::string& name) { List().UserCheck(*RowNamed(name), true); }
    void TickAll() { TickAllRows(List()); }
    void Select(const std::string& name) { List().UserSelect(RowNamed(name)); }
    // The texts of the message boxes so far.
    RowTexts Messages() {
        RowTexts texts;
        for (const Message& message : program.desktop.messages) texts.push_back(message.text);
        return texts;
    }
    std::string ErrorText(ErrorCode code) {
        return program.application.registry.GetSystemErrorText(code);
    }

    TestProgram program;
};

}  // namespace velkarix
