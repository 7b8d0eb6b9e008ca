// The page of installed applications: deleting an entry, and the setting of its view.
#include "tests/browser/HardItems.h"
#include "tests/faults/CommandList.h"
#include "tests/faults/FaultTable.h"
#include "tests/faults/PlainScenes.h"
#include "tests/installed/InstalledPage.h"

namespace velkarix {
namespace {

void PutEntries(MemoryMachine& machine, Family family) {
    PutFullMachine(machine);
    machine.SetFamily(family);
    const std::string key = InstalledPage::KeyOf("Hard");
    PutHardTree(machine.registry, Hive::LocalMachine, key);
    machine.SetValue(Hive::LocalMachine, key, "DisplayName", "Hard \"1\"");
    machine.SetValue(Hive::LocalMachine, key, "UninstallString", "un");
}

std::string EntryText(const MemoryHives& hives) {
    return TextOfKey(hives, Hive::LocalMachine, InstalledPage::KeyOf("Hard"));
}

// What is shown is what is there: an entry that lacks a name or a command is no application.
std::string FindWrongRow(MemoryMachine& machine) {
    const std::string key = InstalledPage::KeyOf("Hard");
    const bool isListed =
        machine.registry.ValueAt(Hive::LocalMachine, key, "DisplayName").has_value() &&
        machine.registry.ValueAt(Hive::LocalMachine, key, "UninstallString").has_value();
    RunningProgram program(machine);
    OpenForm(program, "frmAddRemove");
    const auto& list = program.Get<ListView>("frmAddRemove", "lstvAddRemove");
    return list.RowCount() == (isListed ? 3 : 2) ? "" : "the list doesn't show what is there";
}

FaultScene DeletionScene(Family family) {
    MemoryMachine machine;
    PutEntries(machine, family);
    PlainScene scene{"frmAddRemove.cmdDelete_Click",
                     family == Family::Windows95 ? "the 95 family" : "the NT family"};
    scene.prepare = [family](MemoryMachine& fresh) { PutEntries(fresh, family); };
    scene.open = [](RunningProgram& program) {
        ListView& list = program.Get<ListView>("frmAddRemove", "lstvAddRemove");
        for (std::size_t i = 0; i < list.RowCount(); ++i) {
            if (list.Row(i).Key() == "Hard") list.UserSelect(&list.Row(i));
        }
        program.desktop.answers = {MessageAnswer::Yes};
    };
    scene.loose = {"C:\\Velkarix\\Backup\\"};
    scene.check = [whole = EntryText(machine.registry)](MemoryMachine& left) {
        MemoryHives kept;
        MergeBackups(left, kept);
        const bool isSafe = EntryText(left.registry) == whole || EntryText(kept) == whole;
        return isSafe ? FindWrongRow(left) : "the entry is lost";
    };
    scene.undo = [](MemoryMachine& left) { MergeBackups(left, left.registry); };
    return SceneOf(scene);
}

FaultScene LeavingScene() {
    PlainScene scene{"frmAddRemove.Form_Unload", "another view"};
    scene.open = [](RunningProgram& program) {
        GiveCommand(program, "frmAddRemove.optReport_Click");
    };
    scene.undo = [](MemoryMachine& machine) {
        RunningProgram program(machine);
        OpenForm(program, "frmAddRemove");
        GiveCommand(program, "frmAddRemove.optIcon_Click");
        GiveCommand(program, "frmAddRemove.Form_Unload");
    };
    return SceneOf(scene);
}

}  // namespace

std::vector<FaultRow> InstalledRows() {
    return {
        {"frmAddRemove.cmdDelete_Click",
         [] {
             return std::vector{DeletionScene(Family::Windows95), DeletionScene(Family::WindowsNt)};
         }},
        {"frmAddRemove.Form_Unload", [] { return std::vector{LeavingScene()}; }}};
}

}  // namespace velkarix
