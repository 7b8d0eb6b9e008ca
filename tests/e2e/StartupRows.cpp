#include "StartupRows.h"

#include <algorithm>
#include <cstring>
#include <map>

#include "Samples.h"
#include "Setup.h"
#include "StartupItems.h"

namespace velkarix::e2e {

namespace {

using enum Mark;
using Rows = std::vector<StartupRow>;

// Of a row without a file: what the list knows of the item alone.
StartupRow BareRow(RowTexts texts, Mark mark = None) {
    texts.resize(StartupColumns().size());
    return {texts, mark};
}

StartupRow FileRow(RowTexts texts, const std::string& path, Mark mark = None) {
    const std::size_t name = path.rfind('\\') + 1;
    texts.push_back(path.substr(name));
    for (const std::string& fact : ShownFacts(path)) texts.push_back(fact);
    texts.push_back(path.substr(0, name));
    return {texts, mark, path};
}

const std::string Idle = SamplePath("SampleIdle.exe");
const std::string Safe = SamplePath("SampleSafe.exe");
const std::string Suspect = SamplePath("SampleSuspect.exe");
const std::string Helper = SamplePath("SampleHelper.dll");
const std::string Snoop = SamplePath("SampleSnoop.dll");
const std::string Tray = SearchedSamplePath();
const std::string Filter = SystemSamplePath();

Rows MachineRegistry() {
    return {
        FileRow({"Sample Agent", "True", "HKLM\\Run", Idle}, Idle),
        BareRow({"Sample Counter", "True", "HKLM\\Run", ""}),
        BareRow({"Sample Data", "True", "HKLM\\Run", ""}),
        BareRow({"Sample Filter", "True", "HKLM\\Run", "rundll32 SampleFilter.dll,Start"}),
        FileRow({"Sample Helper", "True", "HKLM\\Run", "rundll32 " + Helper + ",Register"}, Helper),
        FileRow({"Sample Search Loader", "True", "HKLM\\Run",
                 "\"" + Suspect + "\" /tray \"/list=C:\\Sample Data\\list.txt\""},
                Suspect, Suspicious),
        FileRow({"Sample Snoop", "True", "HKLM\\Run", "rundll32 \"" + Snoop + "\",Watch"}, Snoop,
                Suspicious),
        FileRow({"Sample System Filter", "True", "HKLM\\Run",
                 "%SystemRoot%\\system32\\SampleFilter.dll"},
                Filter),
        FileRow({"Sample Tray", "True", "HKLM\\Run", "SampleTray.exe -minimized"}, Tray),
        BareRow({"Sample Updater", "True", "HKLM\\Run",
                 "C:\\Program Files\\Sample Updater\\updater.exe -auto"}),
        BareRow({"Sample Volume", "True", "HKLM\\Run", "SampleVolume"}),
        FileRow({"Sample Restart", "True", "HKLM\\RunOnce", "\"" + Idle + "\" /resume"}, Idle),
        FileRow({"Sample Setup", "True", "HKLM\\RunOnceEx", "\"" + Safe + "\" /finish"}, Safe),
        BareRow({"Title", "True", "HKLM\\RunOnceEx", "Sample Setup"}),
        BareRow({"Sample Scheduler", "True", "HKLM\\RunServices",
                 "C:\\Program Files\\Sample Scheduler\\scheduler.exe"}),
        BareRow({"Sample Inventory", "True", "HKLM\\RunServicesOnce",
                 "C:\\Program Files\\Sample Inventory\\count.exe"}),
        FileRow({"Sample Assistant", "False", "HKLM\\Run", "\"" + Idle + "\" /hide"}, Idle,
                Disabled),
        FileRow({"Sample Bargains", "False", "HKLM\\Run", Suspect}, Suspect, SuspiciousAndDisabled),
        FileRow({"Sample Cleaner", "False", "HKLM\\RunOnce", Safe + " /clean"}, Safe, Disabled),
        BareRow(
            {"Sample Tour", "False", "HKLM\\RunOnceEx", "C:\\Program Files\\Sample Tour\\tour.exe"},
            Disabled),
        FileRow({"Sample Spooler", "False", "HKLM\\RunServices", Idle + " -service"}, Idle,
                Disabled),
        FileRow({"Sample Defragmenter", "False", "HKLM\\RunServicesOnce", "SampleTray.exe"}, Tray,
                Disabled),
    };
}

Rows UserRegistry() {
    return {
        FileRow({"Sample Agent", "True", "HKCU\\Run", Safe + " /user"}, Safe),
        FileRow({"Sample Messenger", "True", "HKCU\\Run", "\"" + Safe + "\" /background"}, Safe),
        BareRow({"Sample Wallpaper", "True", "HKCU\\Run", ""}),
        FileRow({"Sample Welcome", "True", "HKCU\\RunOnce", Idle + " /welcome"}, Idle),
        FileRow({"Sample Profile", "True", "HKCU\\RunOnceEx", Suspect + " /profile"}, Suspect,
                Suspicious),
        FileRow({"Sample Synchroniser", "True", "HKCU\\RunServices", Idle + " /sync"}, Idle),
        BareRow({"Sample Register", "True", "HKCU\\RunServicesOnce",
                 "C:\\Program Files\\Sample Suite\\register.exe"}),
        FileRow({"Sample Jukebox", "False", "HKCU\\Run", Idle}, Idle, Disabled),
        FileRow({"Sample Survey", "False", "HKCU\\RunOnce", Suspect + " /ask"}, Suspect,
                SuspiciousAndDisabled),
    };
}

Rows UserFolder() {
    return {
        FileRow({"Sample Notes.lnk", "True", "Startup CU", "\"" + Safe + "\" "}, Safe),
        FileRow({"Sample Radio.lnk", "False", "Startup CU", "\"" + Idle + "\" /mute"}, Idle,
                Disabled),
    };
}

Rows MachineFolder() {
    return {
        FileRow({"Sample Casino.lnk", "True", "Startup LM", "\"" + Suspect + "\" "}, Suspect,
                Suspicious),
        FileRow({"Sample Office Bar.lnk", "True", "Startup LM",
                 "\"" + Idle + "\" /bar \"C:\\Sample Office\""},
                Idle),
        FileRow({"Sample Dialler.lnk", "False", "Startup LM", "\"" + Suspect + "\" /dial"}, Suspect,
                SuspiciousAndDisabled),
    };
}

// What each node shows, in the order of reading.
const std::map<std::string, std::vector<Rows (*)()>> Readings = {
    {"All Items", {MachineRegistry, UserRegistry, UserFolder, MachineFolder}},
    {"All Items/Local Machine", {MachineRegistry, MachineFolder}},
    {"All Items/Local Machine/Registry", {MachineRegistry}},
    {"All Items/Local Machine/Startup Folder", {MachineFolder}},
    {"All Items/Current User", {UserRegistry, UserFolder}},
    {"All Items/Current User/Registry", {UserRegistry}},
    {"All Items/Current User/Startup Folder", {UserFolder}},
};

}  // namespace

const std::vector<std::string>& StartupColumns() {
    static const std::vector<std::string> columns = {
        "Name",       "Enabled",      "Location",     "Command",     "File Name", "File Size [Kb]",
        "Created On", "Company Name", "Prodcut Name", "Description", "Path"};
    return columns;
}

std::vector<StartupRow> StartupRowsOf(const std::string& node) {
    Rows rows;
    for (const auto reading : Readings.at(node)) {
        for (StartupRow& row : reading()) rows.push_back(std::move(row));
    }
    // Rows of one name stay in the order of reading.
    std::ranges::stable_sort(rows, [](const StartupRow& a, const StartupRow& b) {
        return _stricmp(a.texts[0].c_str(), b.texts[0].c_str()) < 0;
    });
    return rows;
}

}  // namespace velkarix::e2e
