// The main window: its pages, its start and its end, and what its timer does.
#include "tests/faults/CommandList.h"
#include "tests/faults/FaultTable.h"
#include "tests/faults/PlainScenes.h"

namespace velkarix {
namespace {

// Pages that have something to keep when they are left.
constexpr const char* PagesToLeave[] = {"frmAddRemove", "frmUtilities"};

// A machine that has never seen the program: pages make their folders.
void PutMachineWithoutFolders(MemoryMachine& machine) {
    PutFullMachine(machine);
    for (const char* name : {"Backup", "DLMStartup", "DCUStartup"}) {
        machine.disk.Remove(std::string("C:\\Velkarix\\") + name);
    }
}

// The command that shows the page.
std::string ButtonOf(const std::string& page) {
    return page == "frmAddRemove" ? "frmMain.cmdAddremove_Click" : "frmMain.cmdUtilities_Click";
}

std::vector<FaultScene> PageScenes(const std::string& command) {
    std::vector<FaultScene> scenes;
    for (const char* page : PagesToLeave) {
        if (ButtonOf(page) == command) continue;
        PlainScene scene{command, std::string("from ") + page};
        scene.prepare = PutMachineWithoutFolders;
        scene.open = [page](RunningProgram& program) {
            OpenForm(program, page);
            // What it keeps is another value than before.
            const bool isUtilities = page == std::string("frmUtilities");
            GiveCommand(program, isUtilities ? "frmUtilities.chkAutoDBCheck_Click"
                                             : "frmAddRemove.optReport_Click");
        };
        scenes.push_back(SceneOf(scene));
    }
    return scenes;
}

void SetSettings(MemoryMachine& machine, const std::string& text) {
    PutFullMachine(machine);
    machine.AddFile("C:\\Velkarix\\Settings.ini").Content(text);
}

std::vector<FaultScene> TimerScenes() {
    const std::string command = "frmMain.tmrUpdate_Timer";
    PlainScene first{command, "the first start"};
    first.prepare = [](MemoryMachine& machine) {
        SetSettings(machine, "[Main]\r\nFirstRun=0\r\nView=3\r\n");
    };
    PlainScene late{command, "a late update"};
    late.prepare = [](MemoryMachine& machine) {
        SetSettings(machine, "[Main]\r\nFirstRun=1\r\n[Update]\r\nCheckUpdate=1\r\n");
        machine.AddFile("C:\\Velkarix\\database.ini")
            .Content("[Update]\r\nLast=1/2/2004\r\n[Database]\r\nVersion=7\r\n");
    };
    // Made anew for the update program whenever that is started.
    first.loose = late.loose = {"C:\\Velkarix\\version.ini"};
    return {SceneOf(first), SceneOf(late)};
}

std::vector<FaultScene> LoadScenes(const std::string& command) {
    PlainScene scene{command, "on a new machine"};
    scene.prepare = PutMachineWithoutFolders;
    scene.open = [command](RunningProgram& program) {
        // The main window itself comes by the command.
        if (command != "frmMain.Form_Load" && command != "frmProcess.Form_Load") program.Start();
    };
    return {SceneOf(scene)};
}

}  // namespace

std::vector<FaultRow> FrameRows() {
    std::vector<FaultRow> rows;
    for (const char* button :
         {"cmdProcess", "cmdIE", "cmdStartup", "cmdAddremove", "cmdOptions", "cmdUtilities"}) {
        const std::string command = std::string("frmMain.") + button + "_Click";
        rows.push_back({command, [command] { return PageScenes(command); }});
    }
    for (const char* form : {"frmMain", "frmProcess", "frmStartup", "frmUtilities"}) {
        const std::string command = std::string(form) + ".Form_Load";
        rows.push_back({command, [command] { return LoadScenes(command); }});
    }
    rows.push_back({"frmMain.tmrUpdate_Timer", TimerScenes});
    return rows;
}

}  // namespace velkarix
