// Whatever goes wrong while the protection is set or removed: nothing that the list doesn't name is
// changed, nothing of a control is half gone, and the user hears how it ended.
#include <cstddef>

#include "tests/machine/FaultRunner.h"
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

// What is wrong with keys that may be protected, and those of them that may be gone.
std::string FindWrong(MemoryMachine& machine, bool mayBeGone, const std::string& outside) {
    const MemoryHives& hives = machine.registry;
    if (OutsideOf(machine) != outside) return "something else has changed";
    if (FlagsOf(hives, "") != 1u || FlagsOf(hives, "{S}") != OldFlags) return "not on the list";
    for (const char* name : {"{A}", "{B}"}) {
        const bool isGone = !hives.HasKey(Hive::LocalMachine, KeyOf(name));
        if (isGone && mayBeGone) continue;
        if (isGone) return std::string("lost: ") + name;
        const auto flags = FlagsOf(hives, name);
        if (flags != OldFlags && flags != KillBit) return std::string("wrong flags: ") + name;
    }
    const bool hasAlternate =
        hives.TextAt(Hive::LocalMachine, KeyOf("{B}"), "AlternateCLSID") == "{S}";
    return hasAlternate || !hives.HasKey(Hive::LocalMachine, KeyOf("{B}")) ? "" : "half of {B}";
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

// The last word is that it is done, or, where the list couldn't be read, why.
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
                const std::string& failed = journal.Calls()[call].name;
                const bool isUnread = failed == "CreateFileA" || failed == "ReadFile";
                ASSERT_FALSE(program.desktop.messages.empty());
                const Message& last = program.desktop.messages.back();
                EXPECT_EQ(last.icon, isUnread ? MessageIcon::Critical : MessageIcon::Information);
                EXPECT_EQ(last.text.starts_with("Error occurred: "), isUnread) << failed;
                EXPECT_EQ(last.text == row.done, !isUnread) << failed;
                for (std::size_t i = 0; i + 1 < program.desktop.messages.size(); ++i) {
                    EXPECT_TRUE(program.desktop.messages[i].text.starts_with("Following Key "));
                }
            }
        }
    }
}

}  // namespace
}  // namespace velkarix
