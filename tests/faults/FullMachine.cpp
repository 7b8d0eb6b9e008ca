#include "tests/browser/ItemLists.h"
#include "tests/faults/PlainScenes.h"
#include "tests/options/FullReportMachine.h"
#include "tests/startup/StartupPage.h"

namespace velkarix {
namespace {

// Of the ten addresses, other ones in each hive and some of another type.
void PutAddresses(MemoryMachine& machine) {
    const std::string explorer = "Software\\Microsoft\\Internet Explorer\\";
    for (const Hive hive : {Hive::LocalMachine, Hive::CurrentUser}) {
        const std::string who = hive == Hive::LocalMachine ? "machine" : "user";
        for (const char* name : {"Start Page", "Search Page", "Search Bar", "Default_Page_URL",
                                 "Default_Search_URL"}) {
            machine.SetValue(hive, explorer + "Main", name, "http://" + who + ".example/" + name);
        }
        machine.SetValue(hive, explorer + "Search", "CustomizeSearch", who + "'s");
        machine.SetValue(hive, explorer + "Search", "SearchAssistant", who + "'s own");
    }
    for (const char* name : {"www", "home", "mosaic"}) {
        machine.SetValue(Hive::LocalMachine,
                         "Software\\Microsoft\\Windows\\CurrentVersion\\URL\\Prefixes", name,
                         std::string(name) + "://");
    }
    machine.registry.SetRaw(Hive::CurrentUser, explorer + "Main", "Do404Search",
                            registryType::Binary, {2, 0, 0, 0});
    machine.SetValue(Hive::CurrentUser, explorer + "SearchURL", "", "http://search.example/?%s");
}

void PutOwnFiles(MemoryMachine& machine) {
    const auto put = [&machine](const char* name, const std::string& text) {
        machine.AddFile(std::string("C:\\Velkarix\\") + name).Content(text);
    };
    put("Settings.ini",
        "[Main]\r\nFontBold=0\r\nSusColor=255\r\nDisColor=8421504\r\nSusDisColor=64\r\n"
        "Filter=1\r\nView=0\r\nDelete=0\r\nFirstRun=1\r\n[Update]\r\nCheckUpdate=0\r\n");
    put("database.ini", "[Update]\r\nLast=***\r\n[Database]\r\nVersion=7\r\n");
    put("version.ini", "[Application]\r\nName=Old\r\nVersion=6\r\n");
    put("SafeProcess.vkl", "c:\\one.exe\r\nc:\\two.exe\r\n");
    put("MalActivex.scl", "{A}\r\n{B}\r\n");
    put("Backup\\1.prc",
        "C:\\Tools\\gone.exe\x01"
        "6/1/2003\r\n");
    put("Backup\\1.bup", "the program");
    put("Help\\index.html", "help");
    for (const char* tool : {"MorVane.exe", "Tesselin.exe", "quillate.exe"}) put(tool, "tool");
    for (const char* folder : {HeldLM, HeldCU}) machine.AddFolder(folder);
}

}  // namespace

void PutFullMachine(MemoryMachine& machine) {
    PutReportMachine(machine);
    PutClasses(machine);
    machine.AddFile(ItemFile).Content("item");
    for (const ListCase* list : AllLists) {
        for (const PlaceCase& place : list->places) {
            PutItem(machine, *list, place, true, 'A');
            PutItem(machine, *list, place, false, 'B');
        }
    }
    PutAddresses(machine);
    PutOwnFiles(machine);
    machine.AddFile("C:\\remove.exe").Content("uninstaller");
    machine.system.SetVariable("OS", "Windows_NT");
    machine.system.SetVariable("WinDir", "C:\\WINDOWS");
}

}  // namespace velkarix
