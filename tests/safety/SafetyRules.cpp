#include "tests/safety/SafetyRules.h"

#include <algorithm>
#include <iterator>

#include "tests/machine/CallKinds.h"
#include "tests/machine/CaseFold.h"
#include "tests/machine/Wildcard.h"

namespace velkarix {
namespace {

// A place that commands of a form may change: the key, file or folder with all that is below it. A
// value of a key is told behind a comma; a bar at the end stands for the key alone.
struct AllowedChange {
    const char* form;
    const char* place;
    const char* reason;
};

constexpr AllowedChange AllowedChanges[] = {
    {"frmMain", "C:\\Velkarix\\Settings.ini", "a page that is left, and the first run, are kept"},
    {"frmMain", "C:\\Velkarix\\Backup", "the process page makes the folder that it will need"},
    {"frmMain", "C:\\Velkarix\\DLMStartup", "the startup page makes it for shortcuts"},
    {"frmMain", "C:\\Velkarix\\DCUStartup", "the startup page makes it for shortcuts"},
    {"frmMain", "C:\\Velkarix\\database.ini", "the days until the first update check begin"},
    {"frmMain", "C:\\Velkarix\\version.ini", "tells the updater what there is"},

    {"frmProcess", "C:\\Velkarix\\Settings.ini", "the filter is kept"},
    {"frmProcess", "C:\\Velkarix\\SafeProcess.vkl", "the safe list"},
    {"frmProcess", "C:\\Velkarix\\SafeProcess.vkl.new", "the safe list, until it is written whole"},
    {"frmProcess", "C:\\Velkarix\\Backup", "a deleted file is kept"},
    {"frmProcess", "C:\\Tools", "the file of the process that the user deletes"},
    {"frmProcess", "C:\\WINDOWS\\WinInit.ini", "delete at the next start, on the 95 family"},
    {"frmProcess", SafetyReport, "the user named it"},

    {"frmIE", "HKLM\\Software\\Velkarix\\Disabled", "what is switched off"},
    {"frmIE", "HKCU\\Software\\Velkarix\\Disabled", "what is switched off"},
    {"frmIE", "HKCR\\Software\\Velkarix\\Disabled", "what is switched off"},
    {"frmIE",
     "HKLM\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Browser Helper Objects",
     "the list of helper objects"},
    {"frmIE", "HKLM\\Software\\Microsoft\\Internet Explorer\\Toolbar", "the list of toolbars"},
    {"frmIE", "HKCU\\Software\\Microsoft\\Internet Explorer\\Toolbar\\WebBrowser",
     "the list of toolbars"},
    {"frmIE", "HKLM\\Software\\Microsoft\\Internet Explorer\\Extensions", "the list of buttons"},
    {"frmIE", "HKCU\\Software\\Microsoft\\Internet Explorer\\Extensions", "the list of buttons"},
    {"frmIE", "HKLM\\Software\\Microsoft\\Internet Explorer\\MenuExt", "the list of menus"},
    {"frmIE", "HKCU\\Software\\Microsoft\\Internet Explorer\\MenuExt", "the list of menus"},
    {"frmIE", "HKCR\\Protocols\\Filter", "the list of protocols"},
    {"frmIE", "HKCR\\Protocols\\Handler", "the list of protocols"},
    {"frmIE",
     "HKCU\\Software\\Microsoft\\Windows\\CurrentVersion\\Internet Settings\\ZoneMap\\Domains",
     "the list of domains"},
    {"frmIE", "HKCU\\Software\\Microsoft\\Internet Explorer\\URLSearchHooks", "the list of hooks"},
    {"frmIE", "HKLM\\Software\\Microsoft\\Internet Explorer\\Main", "the addresses"},
    {"frmIE", "HKCU\\Software\\Microsoft\\Internet Explorer\\Main", "the addresses"},
    {"frmIE", "HKLM\\Software\\Microsoft\\Internet Explorer\\Search", "the addresses"},
    {"frmIE", "HKCU\\Software\\Microsoft\\Internet Explorer\\SearchURL", "the addresses"},
    {"frmIE", "HKLM\\Software\\Microsoft\\Windows\\CurrentVersion\\URL\\DefaultPrefix",
     "the addresses"},
    {"frmIE", "HKLM\\Software\\Microsoft\\Windows\\CurrentVersion\\URL\\Prefixes", "the addresses"},
    {"frmIE", "HKCU\\Software\\Microsoft\\Internet Explorer\\Search",
     "the user's own addresses would hide those of the machine"},
    {"frmIE", "HKCU\\Software\\Microsoft\\Windows\\CurrentVersion\\Internet Settings|",
     "made for the proxy where it isn't there"},
    {"frmIE", "HKCU\\Software\\Microsoft\\Windows\\CurrentVersion\\Internet Settings, ProxyEnable",
     "the proxy"},
    {"frmIE", "HKCU\\Software\\Microsoft\\Windows\\CurrentVersion\\Internet Settings, ProxyServer",
     "the proxy"},
    {"frmIE",
     "HKCU\\Software\\Microsoft\\Windows\\CurrentVersion\\Internet "
     "Settings\\ZoneMap\\ProtocolDefaults",
     "the zones of protocols"},
    {"frmIE", "HKCU\\Software\\Microsoft\\Windows\\CurrentVersion\\Internet Settings\\Zones",
     "the settings of zones"},
    {"frmIE", "C:\\Velkarix\\Backup", "a deleted item is kept"},
    {"frmIE", SafetyReport, "the user named it"},

    {"frmStartup", "HKLM\\Software\\Velkarix\\Disabled", "what is switched off"},
    {"frmStartup", "HKCU\\Software\\Velkarix\\Disabled", "what is switched off"},
    {"frmStartup", "HKLM\\Software\\Microsoft\\Windows\\CurrentVersion\\Run", "the list"},
    {"frmStartup", "HKLM\\Software\\Microsoft\\Windows\\CurrentVersion\\RunOnce", "the list"},
    {"frmStartup", "HKLM\\Software\\Microsoft\\Windows\\CurrentVersion\\RunOnceEx", "the list"},
    {"frmStartup", "HKLM\\Software\\Microsoft\\Windows\\CurrentVersion\\RunServices", "the list"},
    {"frmStartup", "HKLM\\Software\\Microsoft\\Windows\\CurrentVersion\\RunServicesOnce",
     "the list"},
    {"frmStartup", "HKCU\\Software\\Microsoft\\Windows\\CurrentVersion\\Run", "the list"},
    {"frmStartup", "HKCU\\Software\\Microsoft\\Windows\\CurrentVersion\\RunOnce", "the list"},
    {"frmStartup", "HKCU\\Software\\Microsoft\\Windows\\CurrentVersion\\RunOnceEx", "the list"},
    {"frmStartup", "HKCU\\Software\\Microsoft\\Windows\\CurrentVersion\\RunServices", "the list"},
    {"frmStartup", "HKCU\\Software\\Microsoft\\Windows\\CurrentVersion\\RunServicesOnce",
     "the list"},
    {"frmStartup", "C:\\All Users\\Startup", "the shortcuts of all users"},
    {"frmStartup", "C:\\Anna\\Startup", "the shortcuts of the user"},
    {"frmStartup", "C:\\Velkarix\\DLMStartup", "shortcuts that are switched off"},
    {"frmStartup", "C:\\Velkarix\\DCUStartup", "shortcuts that are switched off"},
    {"frmStartup", "C:\\Velkarix\\Backup", "a deleted item is kept"},
    {"frmStartup", SafetyReport, "the user named it"},

    {"frmAddRemove", "HKLM\\Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall",
     "the entry that the user deletes"},
    {"frmAddRemove", "C:\\Velkarix\\Backup", "a deleted entry is kept"},
    {"frmAddRemove", SafetyReport, "the user named it"},

    {"frmOptions", "C:\\Velkarix\\Settings.ini", "the options themselves"},
    {"frmOptions", "C:\\Velkarix\\Backup", "backups that are deleted, or restored and done with"},
    {"frmOptions", "C:\\Tools", "where a backup is restored to"},
    {"frmOptions", "C:\\Velkarix\\DLMStartup", "the full report loads the startup page"},
    {"frmOptions", "C:\\Velkarix\\DCUStartup", "the full report loads the startup page"},
    {"frmOptions", SafetyReport, "the user named it"},

    {"frmUtilities",
     "HKLM\\Software\\Microsoft\\Internet Explorer\\ActiveX "
     "Compatibility\\{AC000001-52C4-4D18-9F3A}",
     "a control of the list of malicious ones"},
    {"frmUtilities", "C:\\Velkarix\\version.ini", "tells the updater what there is"},
};

// What a command may do besides: start something, or end a process. Patterns of its name (form,
// control, event) and of the call's arguments.
struct AllowedDeed {
    const char* command;
    const char* call;
    const char* arguments;
    const char* reason;
};

// The verb, the file and no parameters: a report is opened by its path, never by a command line.
constexpr const char* OpenReport = "Open, C:\\Reports\\Report.txt, ";
constexpr const char* ShowInFolder = "Open, explorer.exe, /select,C:\\*";
constexpr const char* WebSearch = "Open, http://www.google.com/search?*, ";
constexpr const char* Updater = "\"C:\\Velkarix\\Morvane.exe\"";

constexpr AllowedDeed AllowedDeeds[] = {
    {"frmMain, lblHelp, Click", "ShellExecuteA", "Open, C:\\Velkarix\\Help\\index.html, ", "help"},
    {"frmMain, tmrUpdate, Timer", "WinExec", "\"C:\\Velkarix\\Morvane.exe\" -s",
     "the update check of the first run and of every fortnight"},

    {"frmProcess, cmdKill, Click", "TerminateProcess", "*", "the selected process"},
    {"frmProcess, lstvProcess, mnuKill", "TerminateProcess", "*", "the selected process"},
    {"frmProcess, cmdDelete, Click", "TerminateProcess", "*", "its file can't be deleted else"},
    {"frmProcess, lstvProcess, mnuDelete", "TerminateProcess", "*",
     "its file can't be deleted else"},
    {"frmProcess, cmdReport, Click", "ShellExecuteA", OpenReport, "the report"},
    {"frmProcess, lstvProcess, mnuReport", "ShellExecuteA", OpenReport, "the report"},
    {"frmProcess, cmdOpen, Click", "ShellExecuteA", ShowInFolder, "the folder"},
    {"frmProcess, lstvProcess, mnuOpen", "ShellExecuteA", ShowInFolder, "the folder"},
    {"frmProcess, lstvProcess, DblClick", "ShellExecuteA", WebSearch, "the web search"},
    {"frmProcess, lstvProcess, mnuGoogle", "ShellExecuteA", WebSearch, "the web search"},

    {"frmIE, cmd*Report*, Click", "ShellExecuteA", OpenReport, "the report of a view"},
    {"frmIE, lstv*, mnu*_Report", "ShellExecuteA", OpenReport, "the report of a view"},
    {"frmIE, cmd*Folder*, Click", "ShellExecuteA", ShowInFolder, "the folder of an item's file"},
    {"frmIE, lstv*, mnu*_Open", "ShellExecuteA", ShowInFolder, "the folder of an item's file"},
    {"frmIE, lstv*, DblClick", "ShellExecuteA", WebSearch, "the web search for a class"},
    {"frmIE, lstv*, mnu*_Google", "ShellExecuteA", WebSearch, "the web search for a class"},

    {"frmStartup, cmdReport, Click", "ShellExecuteA", OpenReport, "the report"},
    {"frmStartup, lstvStartup, mnuStartup_Report", "ShellExecuteA", OpenReport, "the report"},
    {"frmStartup, cmdFolder, Click", "ShellExecuteA", ShowInFolder, "the folder"},

    {"frmAddRemove, cmdUninstall, Click", "WinExec", "C:\\remove.exe *", "as the registry has it"},
    {"frmAddRemove, lstvAddRemove, DblClick", "WinExec", "C:\\remove.exe *",
     "as the registry has it"},
    {"frmAddRemove, lstvAddRemove, mnuAddRemove_Uninstall", "WinExec", "C:\\remove.exe *",
     "as the registry has it"},
    {"frmAddRemove, cmdReport, Click", "ShellExecuteA", OpenReport, "the report"},
    {"frmAddRemove, lstvAddRemove, mnuAddremove_Report", "ShellExecuteA", OpenReport, "the report"},

    {"frmOptions, cmdReport, Click", "ShellExecuteA", OpenReport, "the full report"},

    {"frmUtilities, cmdUpdateDefinition, Click", "WinExec", Updater, "the updater"},
    {"frmUtilities, cmdUpdateSoftware, Click", "WinExec", Updater, "the updater"},
    {"frmUtilities, cmdHosts, Click", "WinExec", "\"C:\\Velkarix\\Tesselin.exe\"", "the tool"},
    {"frmUtilities, cmdRepairLSP, Click", "WinExec", "\"C:\\Velkarix\\Quillate.exe\"", "the tool"},
};

// Of the calls that change something, those that change a place, and where in their arguments it
// is told. The files that are written are told apart from the calls.
enum class PlaceIs { All, BehindTheLastComma, ToldApart };
struct PlaceChange {
    const char* call;
    PlaceIs place;
};
constexpr PlaceChange PlaceChanges[] = {
    {"RegCreateKeyA", PlaceIs::All},
    {"RegDeleteKeyA", PlaceIs::All},
    {"RegDeleteValueA", PlaceIs::All},
    {"RegSetValueExA", PlaceIs::All},
    {"SHCopyKeyA", PlaceIs::BehindTheLastComma},
    {"CreateDirectoryA", PlaceIs::All},
    {"CopyFileA", PlaceIs::BehindTheLastComma},
    {"DeleteFileA", PlaceIs::All},
    {"MoveFileExA", PlaceIs::All},
    {"WritePrivateProfileStringA", PlaceIs::BehindTheLastComma},
    {"CreateFileA", PlaceIs::ToldApart},
    {"WriteFile", PlaceIs::ToldApart},
};

const PlaceChange* FindPlaceChange(const std::string& name) {
    const auto found = std::find_if(std::begin(PlaceChanges), std::end(PlaceChanges),
                                    [&](const PlaceChange& each) { return name == each.call; });
    return found == std::end(PlaceChanges) ? nullptr : found;
}

std::string PlaceOf(const PlaceChange& change, const std::string& arguments) {
    if (change.place == PlaceIs::All) return arguments;
    return arguments.substr(arguments.rfind(", ") + 2);
}

bool IsIn(const std::string& path, const char* place) {
    const std::string folded = FoldCase(path);
    const std::string around = FoldCase(place);
    if (folded.find("\\..") != std::string::npos) return false;  // it leads out again
    if (around.ends_with('|')) return folded + "|" == around;
    if (!folded.starts_with(around)) return false;
    const std::string rest = folded.substr(around.size());
    return rest.empty() || rest.starts_with('\\') || rest.starts_with(", ");
}

}  // namespace

std::vector<std::string> SafetyRules::Complaints(const GivenCommand& command) {
    changesUsed_.resize(std::size(AllowedChanges));
    deedsUsed_.resize(std::size(AllowedDeeds));
    std::vector<std::string> complaints;
    const auto complain = [&](const std::string& what) {
        complaints.push_back(command.Name() + ": " + what);
    };
    for (const Call& call : command.calls) {
        if (!Changes(call)) continue;
        if (const PlaceChange* change = FindPlaceChange(call.name)) {
            if (change->place == PlaceIs::ToldApart) continue;
            const std::string place = PlaceOf(*change, call.arguments);
            if (!MayChange(command, place)) complain(call.name + " " + place);
        } else if (!MayDo(command, call)) {
            complain(call.name + " " + call.arguments);
        }
    }
    for (const std::string& file : command.writtenFiles) {
        if (!MayChange(command, file)) complain("writes " + file);
    }
    return complaints;
}

bool SafetyRules::MayChange(const GivenCommand& command, const std::string& place) {
    bool may = false;
    for (std::size_t i = 0; i < std::size(AllowedChanges); ++i) {
        const AllowedChange& row = AllowedChanges[i];
        if (command.form != row.form || !IsIn(place, row.place)) continue;
        changesUsed_[i] = may = true;
    }
    return may;
}

bool SafetyRules::MayDo(const GivenCommand& command, const Call& call) {
    bool may = false;
    for (std::size_t i = 0; i < std::size(AllowedDeeds); ++i) {
        const AllowedDeed& row = AllowedDeeds[i];
        if (call.name != row.call || !FitsPattern(command.Name(), row.command) ||
            !FitsPattern(call.arguments, row.arguments)) {
            continue;
        }
        deedsUsed_[i] = may = true;
    }
    return may;
}

std::vector<std::string> SafetyRules::UnusedRows() const {
    std::vector<std::string> rows;
    for (std::size_t i = 0; i < changesUsed_.size(); ++i) {
        const AllowedChange& row = AllowedChanges[i];
        if (!changesUsed_[i]) rows.push_back(std::string(row.form) + ": " + row.place);
    }
    for (std::size_t i = 0; i < deedsUsed_.size(); ++i) {
        const AllowedDeed& row = AllowedDeeds[i];
        if (!deedsUsed_[i]) rows.push_back(std::string(row.command) + ": " + row.arguments);
    }
    return rows;
}

}  // namespace velkarix
