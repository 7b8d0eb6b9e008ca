// The page of installed applications of a program on a machine in memory, with what its tests ask
// of it.
#pragma once

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "installed/frmAddRemove.h"
#include "tests/installed/CacheRecord.h"
#include "tests/machine/TestProgram.h"

namespace velkarix {

using RowTexts = std::vector<std::string>;

class InstalledPage : public testing::Test {
  public:
    static std::string KeyOf(const std::string& subKey) {
        return "Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\" + subKey;
    }

  protected:
    void TearDown() override {
        EXPECT_EQ(Machine().registry.OpenKeyCount(), 0u);
        EXPECT_EQ(Machine().files.OpenFileCount(), 0u);
        EXPECT_EQ(Machine().shell.OpenIconCount(), 0u);
    }

    // Starts the program and enters the page.
    void Open() {
        program.Start();
        Enter();
    }
    void Enter() { program.Get<Button>("frmMain", "cmdAddremove").Raise("Click"); }
    void Leave() { program.Get<Button>("frmMain", "cmdOptions").Raise("Click"); }
    bool Click(const std::string& control) { return Page().Find(control)->Raise("Click"); }

    frmAddRemove& Page() {
        return static_cast<frmAddRemove&>(*program.application.forms.Loaded("frmAddRemove"));
    }
    ListView& List() { return program.Get<ListView>("frmAddRemove", "lstvAddRemove"); }
    OptionButton& Option(const std::string& name) {
        return program.Get<OptionButton>("frmAddRemove", name);
    }

    // ---- What is on the machine

    MemoryMachine& Machine() { return program.machine; }
    MemoryRegistry& Registry() { return program.machine.registry; }
    void SetText(const std::string& subKey, const std::string& name, const std::string& text) {
        Registry().SetValue(AllUsers, KeyOf(subKey), name, text);
    }
    // An application that the list shows under the name of its key.
    void AddApp(const std::string& subKey) {
        SetText(subKey, "DisplayName", subKey);
        SetText(subKey, "UninstallString", subKey + " /uninstall");
    }
    void AddAppWithIcon(const std::string& subKey, const std::string& displayIcon) {
        AddApp(subKey);
        SetText(subKey, "DisplayIcon", displayIcon);
    }
    void SetCache(const std::string& subKey, const Bytes& record) {
        Registry().SetRaw(AllUsers,
                          "Software\\Microsoft\\Windows\\CurrentVersion\\App Management\\"
                          "ARPCache\\" +
                              subKey,
                          "SlowInfoCache", registryType::Binary, record);
    }
    void Suspect(const std::string& lines) {
        program.AddInstalledFile("SusInstall.vkl").Content(lines);
    }
    void Settings(const std::string& text) {
        program.AddInstalledFile("Settings.ini").Content(text);
    }

    // ---- What is shown

    // One column of the rows in the shown order.
    RowTexts ColumnOf(std::size_t column) {
        RowTexts texts;
        for (std::size_t i = 0; i < List().RowCount(); ++i) {
            texts.push_back(List().Row(i).Text(column));
        }
        return texts;
    }
    RowTexts Names() { return ColumnOf(0); }
    // The row of a key; null when there is none.
    ListRow* RowOf(const std::string& subKey) {
        for (std::size_t i = 0; i < List().RowCount(); ++i) {
            if (List().Row(i).Key() == subKey) return &List().Row(i);
        }
        return nullptr;
    }
    void Select(const std::string& subKey) { List().UserSelect(RowOf(subKey)); }
    // The texts of the message boxes so far.
    RowTexts Messages() {
        RowTexts texts;
        for (const Message& message : program.desktop.messages) texts.push_back(message.text);
        return texts;
    }

    static constexpr Hive AllUsers = Hive::LocalMachine;

    TestProgram program;
};

}  // namespace velkarix
