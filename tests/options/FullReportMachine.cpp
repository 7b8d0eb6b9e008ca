#include "tests/options/FullReportMachine.h"

#include <utility>

#include "tests/browser/BrowserPage.h"
#include "tests/startup/StartupPage.h"

namespace velkarix {
namespace {

constexpr const char* Settings = "Software\\Microsoft\\Windows\\CurrentVersion\\Internet Settings";
constexpr const char* Explorer = "Software\\Microsoft\\Internet Explorer";
constexpr const char* DefaultPrefix =
    "Software\\Microsoft\\Windows\\CurrentVersion\\URL\\DefaultPrefix";
constexpr const char* Uninstall = "Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall";
constexpr const char* Md5OfA = "0cc175b9c0f1b6a831c399e269772661";

std::string Below(const std::string& key, const std::string& name) {
    return key + "\\" + name;
}

void PutFiles(MemoryMachine& machine) {
    for (const char* path : {"C:\\Tools\\bad.exe", "C:\\Tools\\a.dll"}) {
        machine.AddFile(path)
            .Content("a")
            .Created(2003, 5, 7)
            .Version({{"ProductName", "Suite"},
                      {"ProductVersion", "9.0"},
                      {"FileDescription", "Does things"},
                      {"FileVersion", "1.2.3"},
                      {"InternalName", "inner"},
                      {"OriginalFilename", "orig.dll"},
                      {"Comments", "none"},
                      {"CompanyName", "Works"},
                      {"LegalCopyright", "(c) Works"},
                      {"LegalTrademarks", "tm"},
                      {"PrivateBuild", "p1"},
                      {"SpecialBuild", "s2"}});
    }
    machine.AddFile("C:\\Tools\\known.exe").Content("abc").Created(2003, 5, 7);
    machine.AddFile("C:\\Velkarix\\SusProcess.vkl").Content(Md5OfA);
    machine.AddFile("C:\\Velkarix\\SystemProcess.vkl").Content(Md5OfAbc);
    machine.AddFile("C:\\Velkarix\\SusInstall.vkl").Content("badapp");
}

void PutProcesses(MemoryMachine& machine) {
    machine.AddProcess(300, "C:\\Tools\\known.exe");
    machine.AddProcess(8, "\\SystemRoot\\System32\\smss.exe");
    machine.AddProcess(200, "C:\\Tools\\bad.exe");
}

void PutItems(MemoryMachine& machine) {
    const auto put = [&](Hive hive, const std::string& key, const std::string& name,
                         const std::string& text) { machine.SetValue(hive, key, name, text); };
    for (const auto& [clsid, path] :
         {std::pair(ClassA, "C:\\Tools\\a.dll"), std::pair(ClassB, "C:\\Gone\\b.dll")}) {
        put(Hive::ClassesRoot, Below("CLSID", clsid), "", "About it");
        put(Hive::ClassesRoot, Below("CLSID", clsid) + "\\InprocServer32", "", path);
    }
    machine.AddKey(Hive::LocalMachine, Below(live::BHOs, ClassA));
    machine.AddKey(Hive::LocalMachine, Below(held::BHOs, ClassB));
    put(Hive::LocalMachine, live::Toolbars, ClassA, "");
    put(Hive::CurrentUser, Below(live::Buttons, ClassB), "ClsidExtension", ClassB);
    put(Hive::CurrentUser, Below(live::Buttons, ClassB), "Script", "C:\\Gone\\b.dll");
    put(Hive::CurrentUser, Below(live::Buttons, ClassB), "ButtonText", "Push");
    put(Hive::CurrentUser, Below(live::Menus, "Translate"), "", "C:\\Tools\\page.htm");
    put(Hive::ClassesRoot, Below(live::Handlers, "about"), "CLSID", ClassA);
    put(Hive::ClassesRoot, Below(live::Handlers, "about"), "", "A handler");
    machine.SetDword(Hive::CurrentUser, Below(live::Domains, "good.example"), "http", 2);
    machine.SetDword(Hive::CurrentUser, Below(held::Domains, "bad.example"), "*", 4);
    put(Hive::CurrentUser, live::Hooks, ClassA, "");
}

void PutSettings(MemoryMachine& machine) {
    const std::string main = Below(Explorer, "Main");
    machine.SetValue(Hive::CurrentUser, main, "Start Page", "http://start.example/");
    machine.SetValue(Hive::CurrentUser, main, "Search Page", "http://page.example/");
    machine.SetValue(Hive::CurrentUser, main, "Search Bar", "http://bar.example/");
    machine.SetValue(Hive::LocalMachine, DefaultPrefix, "", "http://");
    machine.SetDword(Hive::CurrentUser, Settings, "ProxyEnable", 1);
    machine.SetValue(Hive::CurrentUser, Settings, "ProxyServer", "proxy.example:8080");
    const std::string defaults = Below(Settings, "ZoneMap\\ProtocolDefaults");
    machine.SetDword(Hive::CurrentUser, defaults, "ftp", 3);
    machine.SetDword(Hive::CurrentUser, defaults, "odd", 9);
    // The other zones: one of one setting, one of none, one that isn't there, one with a strange
    // setting.
    const auto set = [&](const char* zone, const char* name, std::uint32_t data) {
        machine.SetDword(Hive::CurrentUser, Below(Below(Settings, "Zones"), zone), name, data);
    };
    set("0", "1001", 0);
    set("0", "1004", 3);
    set("1", "1001", 1);
    set("2", "1004", 0);
    set("4", "1001", 2);
}

void PutStartup(MemoryMachine& machine) {
    PutStartupFolders(machine);
    PutShortcut(machine, LiveCU, "Helper.lnk", "C:\\Tools\\a.dll", "/x");
    machine.SetValue(Hive::LocalMachine, LiveRun, "Bad", "C:\\Tools\\bad.exe /y");
}

void PutApplications(MemoryMachine& machine) {
    for (const auto& [key, name] : {std::pair("BadApp", "Zoo"), std::pair("Good", "Atlas")}) {
        const std::string path = Below(Uninstall, key);
        machine.SetValue(Hive::LocalMachine, path, "DisplayName", name);
        machine.SetValue(Hive::LocalMachine, path, "UninstallString",
                         std::string("C:\\remove.exe ") + name);
    }
}

}  // namespace

void PutReportMachine(MemoryMachine& machine) {
    machine.clock.SetLocalTime(MakeTime(2004, 6, 1, 15, 4, 5));
    machine.system.SetComputerName("LATHE-4");
    machine.system.SetUserName("Operator");
    machine.system.SetVersion({2, 5, 1, 2600, "Service Pack 2"});
    machine.SetValue(Hive::LocalMachine, Explorer, "Version", "6.0.2900");
    PutFiles(machine);
    PutProcesses(machine);
    PutItems(machine);
    PutSettings(machine);
    PutStartup(machine);
    PutApplications(machine);
}

}  // namespace velkarix
