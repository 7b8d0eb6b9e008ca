#include "tests/safety/SafetyMachine.h"

#include <string>
#include <tuple>
#include <utility>

#include "tests/browser/BrowserPage.h"
#include "tests/options/FullReportMachine.h"
#include "tests/startup/StartupPage.h"

namespace velkarix {
namespace {

const std::string Held = "Software\\Velkarix\\Disabled\\";

void PutPrograms(MemoryMachine& machine) {
    for (const char* name : {"MorVane.exe", "Tesselin.exe", "Quillate.exe", "Help\\index.html"}) {
        machine.AddFile(std::string("C:\\Velkarix\\").append(name));
    }
    machine.AddFile("C:\\WINDOWS\\explorer.exe");
    machine.AddFile("C:\\remove.exe");
    machine.AddFolder("C:\\Reports");
    machine.AddFile("C:\\Velkarix\\MalActivex.scl").Content("{AC000001-52C4-4D18-9F3A}\r\n");
    machine.AddFile("C:\\Velkarix\\database.ini").Content("[Update]\r\nLast=***\r\n");
    machine.AddFile("C:\\Velkarix\\SafeProcess.vkl").Content(std::string(Md5OfAbc).append("\r\n"));
    // Something to tell at the foot of the main window.
    machine.AddFile("C:\\Velkarix\\SusInstall.vkl").Content("held").Unreadable();
    // One process more, whose file can't be deleted while it runs.
    machine.AddFile("C:\\Tools\\busy.exe").Content("busy").InUse();
    machine.AddProcess(400, "C:\\Tools\\busy.exe");
}

void PutBackups(MemoryMachine& machine) {
    for (const char* stem : {"1_1_1_1_1_1", "2_2_33_2_2_2"}) {
        const std::string path = std::string("C:\\Velkarix\\Backup\\").append(stem);
        machine.AddFile(path + ".prc")
            .Content("C:\\Tools\\" + std::string(stem) + ".exe\x01" + "1/1/2004\r\n");
        machine.AddFile(path + ".bup").Content("old");
    }
}

// One item more in each place that the browser's lists read, live and held.
void PutBrowserItems(MemoryMachine& machine) {
    const auto put = [&](Hive hive, const std::string& key, const char* name, const char* text) {
        machine.SetValue(hive, key, name, text);
    };
    for (const char* classId : {ClassC, ClassD}) {
        const std::string key = std::string("CLSID\\") + classId;
        put(Hive::ClassesRoot, key, "", "About it");
        put(Hive::ClassesRoot, key + "\\InprocServer32", "", "C:\\Tools\\a.dll");
    }
    machine.registry.SetRaw(Hive::CurrentUser, live::UserToolbars, ClassC, registryType::Binary,
                            {1, 2, 3});
    put(Hive::LocalMachine, held::Toolbars, ClassD, "");
    machine.registry.SetRaw(Hive::CurrentUser, held::Toolbars, ClassD, registryType::Binary,
                            {1, 2, 3});
    for (const Hive hive : {Hive::LocalMachine, Hive::CurrentUser}) {
        for (const auto& [buttons, menus, classId] :
             {std::tuple(live::Buttons, live::Menus, ClassC),
              std::tuple(held::Buttons, held::Menus, ClassD)}) {
            const std::string button = std::string(buttons) + "\\" + classId;
            put(hive, button, "ClsidExtension", classId);
            put(hive, button, "ButtonText", "Push");
            put(hive, std::string(menus) + "\\Menu " + classId, "", "C:\\Tools\\page.htm");
        }
    }
    for (const auto& [filters, handlers, classId] :
         {std::tuple(live::Filters, live::Handlers, ClassC),
          std::tuple(held::Filters, held::Handlers, ClassD)}) {
        put(Hive::ClassesRoot, std::string(filters) + "\\text " + classId, "CLSID", classId);
        put(Hive::ClassesRoot, std::string(handlers) + "\\res " + classId, "CLSID", classId);
    }
    put(Hive::CurrentUser, held::Hooks, ClassD, "");
}

void PutRunValues(MemoryMachine& machine) {
    const std::string live = "Software\\Microsoft\\Windows\\CurrentVersion\\";
    for (const Hive hive : {Hive::LocalMachine, Hive::CurrentUser}) {
        for (const std::string run :
             {"Run", "RunOnce", "RunOnceEx", "RunServices", "RunServicesOnce"}) {
            machine.SetValue(hive, live + run, "On " + run, "C:\\Tools\\known.exe");
            machine.SetValue(hive, Held + run, "Off " + run, "C:\\Tools\\known.exe");
        }
    }
    PutShortcut(machine, LiveLM, "All.lnk", "C:\\Tools\\known.exe");
}

void PutHeldShortcuts(MemoryMachine& machine) {
    for (const std::string folder : {HeldLM, HeldCU}) {
        machine.AddFolder(folder);
        PutShortcut(machine, folder, "Held" + folder.substr(12, 2) + ".lnk",
                    "C:\\Tools\\known.exe");
    }
}

void PutOnBoth(MemoryMachine& machine) {
    PutReportMachine(machine);
    PutPrograms(machine);
    PutBrowserItems(machine);
    PutRunValues(machine);
}

}  // namespace

void PutSafetyMachine(MemoryMachine& machine) {
    PutOnBoth(machine);
    PutBackups(machine);
    PutHeldShortcuts(machine);
}

void PutOlderSafetyMachine(MemoryMachine& machine) {
    PutOnBoth(machine);
    machine.SetSystem(NamedSystem::Windows98);
    machine.AddFile("C:\\Velkarix\\Settings.ini").Content("[Main]\r\nFirstRun=1\r\n");
    machine.AddFile("C:\\Velkarix\\database.ini").Content("[Update]\r\nLast=1/1/2004\r\n");
}

}  // namespace velkarix
