// What the keys of the main window put on the clipboard.
#include <gtest/gtest.h>

#include "shell/frmMain.h"
#include "tests/machine/TestProgram.h"

namespace velkarix {
namespace {

class CopyKeys : public testing::Test {
  protected:
    CopyKeys() {
        for (const char* key : {"beta", "alpha"}) {
            const std::string path = std::string(Uninstall) + key;
            program.machine.SetValue(Hive::LocalMachine, path, "DisplayName", key);
            program.machine.SetValue(Hive::LocalMachine, path, "UninstallString", "remove.exe");
        }
        program.Start();
        program.Get<Button>("frmMain", "cmdAddremove").Raise("Click");
    }
    bool Press(const KeyStroke& stroke) {
        return program.application.forms.Loaded("frmMain")->RaiseKey(stroke);
    }
    ListView& List() { return program.Get<ListView>("frmAddRemove", "lstvAddRemove"); }
    std::string Status() { return program.Get<Label>("frmMain", "lblStatus").Text(); }
    const std::optional<std::string>& Clipboard() { return program.desktop.clipboard; }

    static constexpr const char* Uninstall =
        "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\";
    static constexpr KeyStroke CopyRow{Key::C, true};
    static constexpr KeyStroke CopyAll{Key::C, true, true};
    TestProgram program;
};

TEST_F(CopyKeys, CopyTheSelectedRow) {
    List().Select(&List().Row(1));
    EXPECT_TRUE(Press(CopyRow));
    EXPECT_EQ(Clipboard(), "beta\tremove.exe");
    EXPECT_EQ(Status(), "The row was copied");
}

TEST_F(CopyKeys, CopyAllRowsWithTheirCaptions) {
    EXPECT_TRUE(Press(CopyAll));
    EXPECT_EQ(Clipboard(),
              "Display Name\tUninstall Command\r\nalpha\tremove.exe\r\nbeta\tremove.exe\r\n");
    EXPECT_EQ(Status(), "All rows were copied");
}

TEST_F(CopyKeys, SayPlainlyThatTheClipboardIsHeld) {
    program.desktop.clipboardHeld = true;
    EXPECT_TRUE(Press(CopyAll));
    ASSERT_EQ(program.desktop.messages.size(), 1u);
    EXPECT_EQ(program.desktop.messages[0].text,
              "Nothing was copied. Another program may be using the clipboard; please try again.");
    EXPECT_EQ(Status(), "2 rows");
}

TEST_F(CopyKeys, CopyNothingWhereNothingIsMeant) {
    EXPECT_TRUE(Press(CopyRow));
    List().Clear();
    EXPECT_TRUE(Press(CopyAll));
    program.Get<Button>("frmMain", "cmdUtilities").Raise("Click");
    EXPECT_TRUE(Press(CopyRow));
    EXPECT_TRUE(Press(CopyAll));
    EXPECT_EQ(Clipboard(), std::nullopt);
    EXPECT_TRUE(program.desktop.messages.empty());
}

}  // namespace
}  // namespace velkarix
