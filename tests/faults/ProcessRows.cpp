// The commands of the process page.
#include "tests/faults/CommandList.h"
#include "tests/faults/FaultTable.h"
#include "tests/faults/PlainScenes.h"
#include "tests/machine/MachineText.h"

namespace velkarix {
namespace {

constexpr const char* Program = "C:\\Tools\\bad.exe";
constexpr const char* Content = "a";  // of the program
constexpr const char* Md5OfContent = "0cc175b9c0f1b6a831c399e269772661";
constexpr ProcessId Id = 200;
constexpr const char* BackupFolderPath = "C:\\Velkarix\\Backup\\";
constexpr const char* Stem = "C:\\Velkarix\\Backup\\6_1_153_15_4_5";
constexpr const char* Record =
    "C:\\Tools\\bad.exe\x01"
    "6/1/2004\r\n";
constexpr const char* SafeListFile = "C:\\Velkarix\\SafeProcess.vkl";
constexpr const char* Renames = "[Rename]\r\nNUL=C:\\OTHER.EXE\r\n";
constexpr const char* WinInit = "C:\\WINDOWS\\WinInit.ini";

void Give(MemoryMachine& machine, const std::string& page,
          std::initializer_list<const char*> commands) {
    RunningProgram program(machine);
    OpenForm(program, page);
    for (const char* command : commands) {
        SelectForCommand(program, command);
        GiveCommand(program, command);
    }
}

// The row that names it in that column.
void SelectProgram(ListView& list, std::size_t column) {
    for (std::size_t i = 0; i < list.RowCount(); ++i) {
        if (list.Row(i).Text(column) == "bad.exe") list.UserSelect(&list.Row(i));
    }
}

// ---- What is shown

void PutFilter(MemoryMachine& machine, bool filtered) {
    machine.AddFile("C:\\Velkarix\\Settings.ini")
        .Content(filtered ? "[Main]\r\nFilter=1\r\nView=0\r\n[Update]\r\nCheckUpdate=0\r\n"
                          : "[Main]\r\nFilter=0\r\nView=0\r\n[Update]\r\nCheckUpdate=0\r\n");
}

FaultScene FilterScene(const char* command, bool filtered, const char* undoing) {
    PlainScene scene{command, "the list shown otherwise"};
    scene.prepare = [filtered](MemoryMachine& machine) {
        PutFullMachine(machine);
        PutFilter(machine, filtered);
    };
    scene.undo = [undoing](MemoryMachine& machine) { Give(machine, "frmProcess", {undoing}); };
    return SceneOf(scene);
}

// ---- The safe list

// The others stand there first, in their order, and behind them the program or nothing: by its path
// where its bytes can't be read.
std::string FindWrongKey(MemoryMachine& machine) {
    const std::string others = "c:\\one.exe\r\nc:\\two.exe\r\n";
    const std::string keys = ContentOf(machine, SafeListFile);
    for (const char* own : {"", "0cc175b9c0f1b6a831c399e269772661\r\n", "c:\\tools\\bad.exe\r\n"}) {
        if (keys == others + own) return {};
    }
    return "not what the user has put on the list:\n" + keys;
}

// `listed`: the program is on it already, and all programs are shown.
FaultScene SafeListScene(const char* command, bool listed,
                         std::initializer_list<const char*> undoing) {
    PlainScene scene{command, "two others on the list"};
    scene.prepare = [listed](MemoryMachine& machine) {
        PutFullMachine(machine);
        PutFilter(machine, !listed);
        std::string keys = "c:\\one.exe\r\nc:\\two.exe\r\n";
        if (listed) keys.append(Md5OfContent).append("\r\n");
        machine.AddFile(SafeListFile).Content(keys);
    };
    scene.loose = {SafeListFile};
    scene.check = FindWrongKey;
    scene.undo = [commands = std::vector<const char*>(undoing)](MemoryMachine& machine) {
        RunningProgram program(machine);
        OpenForm(program, "frmProcess");
        for (const char* each : commands) {
            ListView& list = program.Get<ListView>("frmProcess", "lstvProcess");
            for (std::size_t i = 0; i < list.RowCount(); ++i) {
                list.UserCheck(list.Row(i), list.Row(i).Text(0) == "bad.exe");
            }
            GiveCommand(program, each);
        }
    };
    return SceneOf(scene);
}

// ---- Stopping and deleting

struct Deletion {
    const char* name;
    bool runs = false;
    bool holdsItsFile = false;
    const char* os = "Windows_NT";
    MessageAnswer atNextStart = MessageAnswer::Yes;
};
constexpr Deletion Deletions[] = {
    {"a program that ended"},
    {"a program that runs", true},
    {"a file in use", true, true},
    {"a file in use, on the 95 family", true, true, ""},
    {"a file in use that is to stay", true, true, "Windows_NT", MessageAnswer::No},
};

bool HasBackup(const MemoryMachine& machine) {
    const std::string stem = Stem;
    return ContentOf(machine, stem + ".bup") == Content &&
           ContentOf(machine, stem + ".prc") == Record;
}

std::string FindLoss(MemoryMachine& machine) {
    if (ContentOf(machine, Program) != Content && !HasBackup(machine)) {
        return "the program is lost";
    }
    // Others rely on what they have written there; the new line may have broken off.
    const std::string winInit = ContentOf(machine, WinInit);
    for (const std::string line : {"NUL=C:\\Tools\\BAD.EXE\r\n", "NUL=\r\n"}) {
        if ((Renames + line).starts_with(winInit) && winInit.starts_with(Renames)) return {};
    }
    return "wrong: " + winInit;
}

// The options page brings it back.
void Restore(MemoryMachine& machine) {
    RunningProgram program(machine);
    OpenForm(program, "frmOptions");
    ListView& list = program.Get<ListView>("frmOptions", "lstvBackup");
    SelectProgram(list, 1);
    if (list.SelectedRow() != nullptr) GiveCommand(program, "frmOptions.cmdrestore_Click");
}

FaultScene DeletionScene(const Deletion& deletion) {
    PlainScene scene{"frmProcess.cmdDelete_Click", deletion.name};
    scene.prepare = [deletion](MemoryMachine& machine) {
        PutFullMachine(machine);
        machine.AddFile(Program).ShortName("BAD.EXE").InUse(deletion.holdsItsFile);
        machine.AddFile(WinInit).Content(Renames);
        machine.system.SetVariable("OS", deletion.os);
    };
    scene.open = [deletion](RunningProgram& program) {
        SelectProgram(program.Get<ListView>("frmProcess", "lstvProcess"), 0);
        program.desktop.answers = {MessageAnswer::Yes, deletion.atNextStart};
        // It ends while its row is on view.
        auto& processes = static_cast<MemoryProcesses&>(program.application.machine.processes);
        if (!deletion.runs) processes.End(Id);
    };
    scene.loose = {BackupFolderPath, "process " + std::to_string(Id), "later ", WinInit};
    scene.check = FindLoss;
    if (!deletion.holdsItsFile) scene.undo = Restore;
    return SceneOf(scene);
}

std::vector<FaultScene> DeletionScenes() {
    std::vector<FaultScene> scenes;
    for (const Deletion& deletion : Deletions) scenes.push_back(DeletionScene(deletion));
    return scenes;
}

}  // namespace

std::vector<FaultRow> ProcessRows() {
    return {
        {"frmProcess.optFilter(0)_Click",
         [] {
             return std::vector{FilterScene("frmProcess.optFilter(0)_Click", true,
                                            "frmProcess.optFilter(1)_Click")};
         }},
        {"frmProcess.optFilter(1)_Click",
         [] {
             return std::vector{FilterScene("frmProcess.optFilter(1)_Click", false,
                                            "frmProcess.optFilter(0)_Click")};
         }},
        {"frmProcess.cmdAdd_Click",
         [] {
             return std::vector{
                 SafeListScene("frmProcess.cmdAdd_Click", false,
                               {"frmProcess.optFilter(0)_Click", "frmProcess.cmdRemove_Click",
                                "frmProcess.optFilter(1)_Click"})};
         }},
        {"frmProcess.cmdRemove_Click",
         [] {
             return std::vector{
                 SafeListScene("frmProcess.cmdRemove_Click", true,
                               {"frmProcess.optFilter(1)_Click", "frmProcess.cmdAdd_Click",
                                "frmProcess.optFilter(0)_Click"})};
         }},
        {"frmProcess.cmdKill_Click",
         [] {
             return std::vector{SceneOf({"frmProcess.cmdKill_Click", "a program that runs"})};
         }},
        {"frmProcess.cmdDelete_Click", DeletionScenes},
    };
}

}  // namespace velkarix
