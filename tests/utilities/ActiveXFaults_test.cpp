// Whatever goes wrong while the protection is set or removed, the user hears how it ended.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>

#include "tests/machine/TestProgram.h"
#include "tests/utilities/ActiveXKeys.h"

namespace velkarix {
namespace {

// Two of the controls have keys already, of which one holds more than flags.
void Prepare(MemoryMachine& machine) {
    machine.AddFile("C:\\Velkarix\\MalActivex.scl").Content("{A}\r\n{B}\r\n{C}\r\n");
    for (const char* name : {"{A}", "{B}"}) {
        machine.SetDword(Hive::LocalMachine, KeyOf(name), "Compatibility Flags", 0x20);
    }
    machine.SetValue(Hive::LocalMachine, KeyOf("{B}"), "AlternateCLSID", "{S}");
}

void Open(RunningProgram& program) {
    program.application.forms.Show("frmUtilities");
}

class ActiveXFaults : public testing::Test {
  protected:
    struct Row {
        const char* button;
        const char* done;
        bool deletes;
    };
    static constexpr Row Rows[] = {
        {"cmdActiveXProtect", "Protection activated Successfully.", false},
        {"cmdActiveXRemove", "Protection removed Successfully.", true},
    };
    static void Click(RunningProgram& program, const Row& row) {
        program.application.forms.Loaded("frmUtilities")->Find(row.button)->Raise("Click");
    }
};

// The last word is that it is done, or, where the list couldn't be read or nothing could be kept,
// why.
TEST_F(ActiveXFaults, EndInOneWord) {
    for (const Row& row : Rows) {
        for (const bool fromThereOn : {false, true}) {
            std::size_t calls = 1;
            for (std::size_t call = 0; call < calls; ++call) {
                TestProgram program;
                Prepare(program.machine);
                Open(program);
                CallJournal& journal = program.machine.Journal();
                journal.Clear();
                journal.FailCall(call, error::InvalidData, fromThereOn);
                Click(program, row);
                journal.FailCall(SIZE_MAX, error::Success);
                calls = journal.Calls().size();
                const std::vector<std::string> names = journal.Names();
                const std::string& failed = names[call];
                const auto done = std::find(names.begin(), names.end(), "GetLocalTime");
                const bool isKeeping = done - names.begin() <= static_cast<std::ptrdiff_t>(call);
                const bool isUnread =
                    !isKeeping && (failed == "CreateFileA" || failed == "ReadFile");
                ASSERT_FALSE(program.desktop.messages.empty());
                const Message& last = program.desktop.messages.back();
                const bool isUnkept = last.text.starts_with("Error Occurred backupItem: ");
                EXPECT_EQ(last.icon, isUnread ? MessageIcon::Critical : MessageIcon::Information);
                EXPECT_EQ(last.text.starts_with("Error occurred: "), isUnread) << failed;
                EXPECT_EQ(last.text == row.done, !isUnread && !isUnkept) << failed;
                EXPECT_LE(isUnkept, row.deletes) << failed;
                for (std::size_t i = 0; i + 1 < program.desktop.messages.size(); ++i) {
                    EXPECT_TRUE(program.desktop.messages[i].text.starts_with("Following Key "));
                }
            }
        }
    }
}

}  // namespace
}  // namespace velkarix
