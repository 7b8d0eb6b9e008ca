#include "tests/options/FullReportMachine.h"

#include <initializer_list>

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

std::string Lines(std::initializer_list<std::string> lines) {
    std::string text;
    for (const std::string& line : lines) text += line + "\r\n";
    return text;
}

std::string Below(const std::string& key, const std::string& name) {
    return key + "\\" + name;
}

const std::string FullBlock = Lines({
    "Product Name      : Suite",
    "Product Version   : 9.0",
    "File Description  : Does things",
    "File Version      : 1.2.3",
    "Internal Name     : inner",
    "Original Filename : orig.dll",
    "Comments          : none",
    "Company Name      : Works",
    "Legal Copyright   : (c) Works",
    "Legal Trademarks  : tm",
    "Private Build     : p1",
    "Special Build     : s2",
});
const std::string EmptyBlock = Lines({
    "Product Name      : ",
    "Product Version   : ",
    "File Description  : ",
    "File Version      : ",
    "Internal Name     : ",
    "Original Filename : ",
    "Comments          : ",
    "Company Name      : ",
    "Legal Copyright   : ",
    "Legal Trademarks  : ",
    "Private Build     : ",
    "Special Build     : ",
});
const std::string SizeAndFacts = Lines({
    "Size (Kb)         : 0.0",
    "Created on        : 05/07/2003",
    "Company Name      : Works",
    "Product Name      : Suite",
    "Description       : Does things",
    "Path              : C:\\Tools\\",
});
const std::string NoFacts = Lines({
    "Size (Kb)         : ",
    "Created on        : ",
    "Company Name      : ",
    "Product Name      : ",
    "Description       : ",
    "Path              : C:\\Gone\\",
});

// ---- What is there

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

// ---- What is said of it

constexpr const char* ZoneSettings[] = {
    "Download signed ActiveX controls",
    "Download unsigned ActiveX controls",
    "Run ActiveX controls and plugins",
    "Initialize, script ActiveX controls not marked safe",
    "Script ActiveX controls marked safe for scripting",
    "Launch applications and files in an IFRAME",
    "File Downloading",
    "Font Downloading",
    "Submit non-encrypted form data",
    "Launch Applications and unsafe files",
    "Use Popup Blocker",
};

std::string AllEnabled() {
    std::string text;
    for (const char* setting : ZoneSettings) {
        if (!text.empty()) text += "\r\n";
        text +=
            Lines({std::string("Property          : ") + setting, "Status            : Enabled"});
    }
    return text;
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

std::string ReportHeader() {
    return Lines({"Full Report Generated by : Velkarix", "Version                       : 1.0",
                  "Date                          : 6/1/2004 3:04:05 PM", "",
                  "Computer Name        : LATHE-4",
                  std::string("User Name            : Operator") + '\0',
                  "Windows Version      : Microsoft Windows XP", "Windows Build        : 5.1.2600",
                  "Windows Service Pack : Service Pack 2", "Internet Explorer    : 6.0.2900", ""});
}

// The filter hides one of them, and marks another one.
std::string ProcessArea() {
    return Lines({"", "****** Process Report ******", ""}) +
           Lines({"Process Name      : bad.exe"}) + SizeAndFacts + FullBlock + "\r\n" +
           Lines({"Process Name      : known.exe", "Size (Kb)         : 0.0",
                  "Created on        : 05/07/2003", "Company Name      : ", "Product Name      : ",
                  "Description       : ", "Path              : C:\\Tools\\"}) +
           EmptyBlock + "\r\n" +
           Lines({"Process Name      : smss.exe", "Size (Kb)         : ", "Created on        : ",
                  "Company Name      : ", "Product Name      : ", "Description       : ",
                  "Path              : \\SystemRoot\\System32\\"}) +
           EmptyBlock;
}

std::string BrowserArea() {
    const std::string a = ClassA;
    const std::string b = ClassB;
    return Lines({"", "****** Internet Explorer Report ******", "", "****** BHO Report ******",
                  "BHO CLSID         : " + a + " *******[Risk]*******", "Enabled           : Yes",
                  "File Name         : a.dll"}) +
           SizeAndFacts + FullBlock + "\r\n" +
           Lines({"BHO CLSID         : " + b, "Enabled           : No",
                  "File Name         : b.dll"}) +
           NoFacts + EmptyBlock +
           Lines({"", "****** Toolbar Report ******",
                  "Toolbar CLSID     : " + a + " *******[Risk]*******", "Enabled           : True",
                  "Scope             : All Users", "Description       : About it",
                  "File Name         : a.dll"}) +
           SizeAndFacts + FullBlock +
           Lines({"", "****** Toolbar Button Report ******", "Button CLSID : " + b,
                  "Enabled           : True", "Scope             : Current User",
                  "Button Text       : Push", "File Name         : b.dll"}) +
           NoFacts + EmptyBlock +
           Lines({"", "****** Menu Report ******", "Menu         : Translate",
                  "Enabled      : True", "Scope        : Current User",
                  "Path         : C:\\Tools\\page.htm"}) +
           Lines({"", "****** Protocol Report ******",
                  "Protocol          : about *******[Risk]*******", "CLSID             : " + a,
                  "Enabled           : Yes", "Scope             : Handler",
                  "Description       : A handler", "File Name         : a.dll"}) +
           SizeAndFacts + FullBlock +
           Lines({"", "****** Domain Report ******", "Domain            : http://*.good.example",
                  "Enabled           : True", "Status            : Trusted", "",
                  "Domain            : *.bad.example", "Enabled           : False",
                  "Status            : Restricted"}) +
           Lines({"", "****** URLs Report ******", "Start Page        : http://start.example/",
                  "Cust Search       : ", "Search Asst.      : ",
                  "Search Page       : http://page.example/", "Search URL        : ",
                  "Search Bar        : http://bar.example/", "Prefix def        : http://",
                  "Prefix www        : ", "Prefix home       : ", "Prefix mosaic     : "}) +
           Lines({"", "****** SearchHook Report ******",
                  "Search Hook CLSID : " + a + " *******[Risk]*******", "Enabled           : Yes",
                  "File Name         : a.dll"}) +
           SizeAndFacts + FullBlock + BrowserSettings(FirstZone());
}

std::string FirstZone() {
    return Lines(
        {"Property          : Download signed ActiveX controls", "Status            : Enabled", "",
         "Property          : Download unsigned ActiveX controls", "Status            : Disabled"});
}

std::string BrowserSettings(const std::string& firstZone) {
    return Lines({"", "", "****** Proxy Server Report ******", "Proxy Enabled     : True",
                  "Proxy Server      : proxy.example", "Proxy Port        : 8080", "",
                  "****** Protocol Defaults Report ******", "Protocol Defaults : ftp",
                  "Security Zone     : Internet", "", "Protocol Defaults : odd",
                  "Security Zone     : Unknown", "", "****** Security Zones Report ******", "",
                  "****** [My Computer] ******"}) +
           firstZone +
           Lines({"", "****** [Local Intranet] ******",
                  "Property          : Download signed ActiveX controls",
                  "Status            : Prompt"}) +
           Lines({"", "****** [Trusted Sites] ******"}) + Lines({"", "****** [Internet] ******"}) +
           AllEnabled() +
           Lines({"", "****** [Restricted Sites] ******",
                  "Property          : Download signed ActiveX controls",
                  "Status            : Unknown"});
}

std::string StartupArea() {
    return Lines({"", "****** Startup Report ******", "",
                  "Startup Item      : Bad *******[Risk]*******", "Enabled           : Yes",
                  "Location          : ", "Command           : C:\\Tools\\bad.exe /y",
                  "File Name         : bad.exe"}) +
           SizeAndFacts + FullBlock + "\r\n" +
           Lines({"Startup Item      : Helper.lnk *******[Risk]*******", "Enabled           : Yes",
                  "Location          : Current User Startup Folder",
                  "Command           : \"C:\\Tools\\a.dll\" /x", "File Name         : a.dll"}) +
           SizeAndFacts + FullBlock;
}

std::string InstalledArea() {
    return Lines({"", "****** Add/Remove Report ******", "", "Program Name : Atlas",
                  "Command      : C:\\remove.exe Atlas", "",
                  "Program Name : Zoo *******[Risk]*******", "Command      : C:\\remove.exe Zoo"});
}

std::string EmptyAreas() {
    return Lines({"",
                  "****** Process Report ******",
                  "",
                  "",
                  "****** Internet Explorer Report ******",
                  "",
                  "****** BHO Report ******",
                  "",
                  "****** Toolbar Report ******",
                  "",
                  "****** Toolbar Button Report ******",
                  "",
                  "****** Menu Report ******",
                  "",
                  "****** Protocol Report ******",
                  "",
                  "****** Domain Report ******",
                  "",
                  "****** URLs Report ******",
                  "Start Page        : ",
                  "Cust Search       : ",
                  "Search Asst.      : ",
                  "Search Page       : ",
                  "Search URL        : ",
                  "Search Bar        : ",
                  "Prefix def        : ",
                  "Prefix www        : ",
                  "Prefix home       : ",
                  "Prefix mosaic     : ",
                  "",
                  "****** SearchHook Report ******",
                  "",
                  "",
                  "****** Proxy Server Report ******",
                  "Proxy Enabled     : False",
                  "Proxy Server      : ",
                  "Proxy Port        : ",
                  "",
                  "****** Protocol Defaults Report ******",
                  "",
                  "****** Security Zones Report ******",
                  "",
                  "****** [My Computer] ******"}) +
           AllEnabled() + Lines({"", "****** [Local Intranet] ******"}) + AllEnabled() +
           Lines({"", "****** [Trusted Sites] ******"}) + AllEnabled() +
           Lines({"", "****** [Internet] ******"}) + AllEnabled() +
           Lines({"", "****** [Restricted Sites] ******"}) + AllEnabled() +
           Lines(
               {"", "****** Startup Report ******", "", "", "****** Add/Remove Report ******", ""});
}

}  // namespace velkarix
