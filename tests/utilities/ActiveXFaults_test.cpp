// Whatever goes wrong while the protection is set or removed: nothing that the list doesn't name is
// changed, nothing of a control is half gone, what is gone is kept, and the user hears how it
// ended.
#include <algorithm>
#include <cstddef>

#include "tests/machine/FaultRunner.h"
#include "tests/machine/RegistryFileMerge.h"
#include "tests/utilities/ActiveXKeys.h"

namespace velkarix {
namespace {

constexpr const char* Listed[] = {"{A}", "{B}", "{C}"};
constexpr std::uint32_t OldFlags = 0x20;

// Two controls have keys already, of which one holds more than flags; so has one that isn't listed.
void Prepare(MemoryMachine& machine, NamedSystem system, std::size_t lineLength) {
    machine.SetSystem(system);
    std::string list;
    for (const char* name : Listed) list += name + std::string("\r\n");
    list.append(lineLength, 'x').append("\r\n");
    machine.AddFile("C:\\Velkarix\\MalActivex.scl").Content(list);
    for (const char* name : {"{A}", "{B}", "{S}"}) {
        machine.SetDword(Hive::LocalMachine, KeyOf(name), "Compatibility Flags", OldFlags);
    }
    machine.SetValue(Hive::LocalMachine, KeyOf("{B}"), "AlternateCLSID", "{S}");
    machine.SetDword(Hive::LocalMachine, AllKeys, "Compatibility Flags", 1);
}

void Open(RunningProgram& program) {
    program.application.forms.Show("frmUtilities");
}

// What the kept registry files bring back.
void MergeKept(const MemoryMachine& machine, MemoryHives& into) {
    const auto folder = machine.disk.Find("C:\\Velkarix\\Backup");
    if (!folder) return;
    for (std::size_t i = 0; const auto file = folder->children.At(i); ++i) {
        MergeRegistryFile(into, {file->content.begin(), file->content.end()});
    }
}

// What is wrong with keys that may be protected, and those of them that may be gone.
std::string FindWrong(MemoryMachine& machine, bool mayBeGone, const std::string& outside) {
    const MemoryHives& hives = machine.registry;
    if (OutsideOf(machine) != outside) return "something else has changed";
    if (FlagsOf(hives, "") != 1u || FlagsOf(hives, "{S}") != OldFlags) return "not on the list";
    MemoryHives kept;
    MergeKept(machine, kept);
    for (const char* name : {"{A}", "{B}"}) {
        const bool isGone = !hives.HasKey(Hive::LocalMachine, KeyOf(name));
        const MemoryHives& standing = isGone && mayBeGone ? kept : hives;
        const auto flags = FlagsOf(standing, name);
        if (flags != OldFlags && flags != KillBit) return std::string("lost: ") + name;
        const bool hasAlternate =
            standing.TextAt(Hive::LocalMachine, KeyOf(name), "AlternateCLSID") == "{S}";
        if (hasAlternate != (name == std::string("{B}"))) return std::string("half of ") + name;
    }
    return "";
}

class ActiveXFaults : public testing::Test {
  protected:
    struct Row {
        const char* name;
        const char* button;
        const char* done;
        bool deletes;
    };
    static constexpr Row Rows[] = {
        {"protect", "cmdActiveXProtect", "Protection activated Successfully.", false},
        {"remove", "cmdActiveXRemove", "Protection removed Successfully.", true},
    };
    static void Click(RunningProgram& program, const Row& row) {
        program.application.forms.Loaded("frmUtilities")->Find(row.button)->Raise("Click");
    }
    static std::string OutsideBefore(NamedSystem system) {
        MemoryMachine machine;
        Prepare(machine, system, 0);
        return OutsideOf(machine);
    }
};

TEST_F(ActiveXFaults, ChangeNothingThatIsNotListed) {
    FaultRunner runner;
    for (const NamedSystem system : {NamedSystem::WindowsXp, NamedSystem::Windows95}) {
        const std::string outside = OutsideBefore(system);
        for (const Row& row : Rows) {
            runner.Run(
                {row.name, [system](MemoryMachine& machine) { Prepare(machine, system, 300); },
                 Open, [&row](RunningProgram& program) { Click(program, row); },
                 [&](MemoryMachine& machine) { return FindWrong(machine, row.deletes, outside); }});
        }
    }
    runner.PrintCounts();
}

// The last word is that it is done, or, where the list couldn't be read or nothing could be kept,
// why.
TEST_F(ActiveXFaults, EndInOneWord) {
    for (const Row& row : Rows) {
        for (const bool fromThereOn : {false, true}) {
            std::size_t calls = 1;
            for (std::size_t call = 0; call < calls; ++call) {
                TestProgram program;
                Prepare(program.machine, NamedSystem::WindowsXp, 0);
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
