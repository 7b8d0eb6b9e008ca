// The utilities page: the protection from ActiveX controls, the update program, the page's setting.
#include "base/Text.h"
#include "tests/faults/CommandList.h"
#include "tests/faults/FaultTable.h"
#include "tests/faults/PlainScenes.h"
#include "tests/utilities/ActiveXKeys.h"

namespace velkarix {
namespace {

constexpr const char* ProtectCommand = "frmUtilities.cmdActiveXProtect_Click";
constexpr const char* RemoveCommand = "frmUtilities.cmdActiveXRemove_Click";

// The page has nothing to write when it is loaded.
void PutUpdatedMachine(MemoryMachine& machine) {
    PutFullMachine(machine);
    machine.AddFile("C:\\Velkarix\\database.ini").Content("[Update]\r\nLast=6/1/2004\r\n");
}

void GiveOnPage(MemoryMachine& machine, const char* command) {
    RunningProgram program(machine);
    OpenForm(program, "frmUtilities");
    GiveCommand(program, command);
}

// Two of three controls have keys already, of which one holds more than flags; so has one that
// isn't listed.
void PutControls(MemoryMachine& machine, NamedSystem system, bool isProtected) {
    PutUpdatedMachine(machine);
    machine.SetSystem(system);
    std::string list = "{A}\r\n{B}\r\n{C}\r\n";
    list.append(300, 'x').append("\r\n");
    machine.AddFile("C:\\Velkarix\\MalActivex.scl").Content(list);
    for (const char* name : {"{A}", "{B}", "{S}"}) {
        machine.SetDword(Hive::LocalMachine, KeyOf(name), "Compatibility Flags", 0x20);
    }
    machine.SetValue(Hive::LocalMachine, KeyOf("{B}"), "AlternateCLSID", "{S}");
    machine.SetDword(Hive::LocalMachine, AllKeys, "Compatibility Flags", 1);
    if (isProtected) {
        machine.SetDword(Hive::LocalMachine, KeyOf("{A}"), "Compatibility Flags", KillBit);
        machine.SetDword(Hive::LocalMachine, KeyOf("{C}"), "Compatibility Flags", KillBit);
        machine.SetDword(Hive::LocalMachine, KeyOf(std::string(300, 'x')), "Compatibility Flags",
                         KillBit);
    }
}

// A control's key is the protection's own: what it held before is written over, and goes with it.
std::vector<FaultScene> ControlScenes(const char* command, const char* undoing) {
    std::vector<FaultScene> scenes;
    for (const NamedSystem system : {NamedSystem::WindowsXp, NamedSystem::Windows95}) {
        PlainScene scene{command, system == NamedSystem::WindowsXp ? "NT" : "95"};
        scene.prepare = [system, command](MemoryMachine& machine) {
            PutControls(machine, system, command == RemoveCommand);
        };
        scene.undo = [undoing](MemoryMachine& machine) { GiveOnPage(machine, undoing); };
        scene.loose = {"C:\\Velkarix\\Backup\\"};  // what is removed is kept there
        for (const char* name : {"{a}", "{b}"}) {
            scene.overwritten.push_back("hklm\\" + ToLower(KeyOf(name)));
        }
        scenes.push_back(SceneOf(scene));
    }
    return scenes;
}

// The update program reads what is written for it, so that there is nothing to be taken back.
std::vector<FaultScene> UpdateScenes(const char* command) {
    PlainScene scene{command, "another version"};
    scene.loose = {"C:\\Velkarix\\version.ini"};
    return {SceneOf(scene)};
}

FaultScene LeavingScene() {
    PlainScene scene{"frmUtilities.Form_Unload", "the check switched on"};
    scene.prepare = PutUpdatedMachine;
    scene.open = [](RunningProgram& program) {
        GiveCommand(program, "frmUtilities.chkAutoDBCheck_Click");
    };
    scene.undo = [](MemoryMachine& machine) {
        RunningProgram program(machine);
        OpenForm(program, "frmUtilities");
        auto& box = program.Get<CheckBox>("frmUtilities", "chkAutoDBCheck");
        if (box.Checked()) box.Raise("Click");
        GiveCommand(program, "frmUtilities.Form_Unload");
    };
    return SceneOf(scene);
}

}  // namespace

std::vector<FaultRow> UtilitiesRows() {
    std::vector<FaultRow> rows = {
        {ProtectCommand, [] { return ControlScenes(ProtectCommand, RemoveCommand); }},
        {RemoveCommand, [] { return ControlScenes(RemoveCommand, ProtectCommand); }},
        {"frmUtilities.Form_Unload", [] { return std::vector{LeavingScene()}; }},
    };
    for (const char* command :
         {"frmUtilities.cmdUpdateDefinition_Click", "frmUtilities.cmdUpdateSoftware_Click"}) {
        rows.push_back({command, [command] { return UpdateScenes(command); }});
    }
    return rows;
}

}  // namespace velkarix
