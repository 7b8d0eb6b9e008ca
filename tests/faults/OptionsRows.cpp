// The options page: its settings, the backups of deleted files, the full report.
#include <algorithm>

#include "options/BackupColumns.h"
#include "options/FullReportAreas.h"
#include "tests/faults/CommandList.h"
#include "tests/faults/FaultTable.h"
#include "tests/faults/PlainScenes.h"
#include "tests/machine/MachineText.h"

namespace velkarix {
namespace {

constexpr const char* BackupFolderPath = "C:\\Velkarix\\Backup\\";
constexpr const char* Deleted = "C:\\Tools\\gone.exe";
constexpr const char* Program = "the program";

// ---- Settings

struct Setting {
    const char* command;
    Color before = 0;  // of a colour
};
constexpr Setting AllSettings[] = {
    {"frmOptions.chkFontBold_Click"},           {"frmOptions.chkDelete_Click"},
    {"frmOptions.picSuspicious_DblClick", 255}, {"frmOptions.picDisabled_DblClick", 8421504},
    {"frmOptions.picSusDis_DblClick", 64},
};

void UndoSetting(MemoryMachine& machine, const Setting& setting) {
    RunningProgram program(machine);
    OpenForm(program, "frmOptions");
    const std::string command = setting.command;
    if (setting.before != 0) {
        program.desktop.nextColor = setting.before;
    } else {
        const std::string name = SplitCommand(command).second;
        const auto& box = program.Get<CheckBox>("frmOptions", name.substr(0, name.rfind('_')));
        if (!box.Checked()) GiveCommand(program, command);
    }
    GiveCommand(program, command);
}

FaultScene SettingScene(const Setting& setting) {
    PlainScene scene{setting.command, "another value"};
    scene.undo = [setting](MemoryMachine& machine) { UndoSetting(machine, setting); };
    return SceneOf(scene);
}

// ---- Backups

// Whether any file of the backups holds that.
bool IsKept(const MemoryMachine& machine, const std::string& content) {
    const std::vector<std::string> files = KeptFiles(machine);
    return std::find(files.begin(), files.end(), content) != files.end();
}

// `present` stands where the program was, if there is something.
FaultScene RestoreScene(const char* name, bool withdraws, const char* present) {
    PlainScene scene{"frmOptions.cmdrestore_Click", name};
    scene.prepare = [withdraws, present](MemoryMachine& machine) {
        PutFullMachine(machine);
        machine.AddFile("C:\\Velkarix\\Settings.ini")
            .Content(withdraws ? "[Main]\r\nDelete=1\r\n" : "[Main]\r\nDelete=0\r\n");
        if (present != nullptr) machine.AddFile(Deleted).Content(present);
    };
    scene.loose = {BackupFolderPath, Deleted};
    scene.check = [present](MemoryMachine& machine) -> std::string {
        const auto stands = [&machine](const std::string& content) {
            return ContentOf(machine, Deleted) == content || IsKept(machine, content);
        };
        if (!stands(Program)) return "the backup is lost";
        if (present != nullptr && !stands(present)) return "what was there is lost";
        return {};
    };
    return SceneOf(scene);
}

FaultScene DeletionScene() {
    PlainScene scene{"frmOptions.cmdDelete_Click", "one of two"};
    scene.prepare = [](MemoryMachine& machine) {
        PutFullMachine(machine);
        machine.AddFile(std::string(BackupFolderPath) + "2.prc")
            .Content(
                "C:\\b.exe\x01"
                "d\r\n");
        machine.AddFile(std::string(BackupFolderPath) + "2.bup").Content("another program");
    };
    return SceneOf(scene);
}

// ---- The full report

FaultScene ReportScene(const FullReportArea& area) {
    PlainScene scene{"frmOptions.cmdReport_Click", area.caption};
    scene.open = [box = area.box](RunningProgram& program) {
        SelectForCommand(program, "frmOptions.cmdReport_Click");
        program.Get<CheckBox>("frmOptions", box).Raise("Click");
    };
    scene.loose = {SavedFile};
    return SceneOf(scene);
}

}  // namespace

std::vector<FaultRow> OptionsRows() {
    std::vector<FaultRow> rows = {
        {"frmOptions.cmdrestore_Click",
         [] {
             return std::vector{RestoreScene("nothing in its place", false, nullptr),
                                RestoreScene("another in its place", true, "another"),
                                RestoreScene("itself in its place", true, Program)};
         }},
        {"frmOptions.cmdDelete_Click", [] { return std::vector{DeletionScene()}; }},
        {"frmOptions.cmdReport_Click",
         [] {
             std::vector<FaultScene> scenes;
             for (const FullReportArea& area : FullReportAreas()) {
                 scenes.push_back(ReportScene(area));
             }
             return scenes;
         }},
    };
    for (const Setting& setting : AllSettings) {
        rows.push_back({setting.command, [setting] { return std::vector{SettingScene(setting)}; }});
    }
    return rows;
}

}  // namespace velkarix
