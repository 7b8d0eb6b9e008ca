#include "shell/Updater.h"

#include <cmath>
#include <optional>
#include <string>

#include "base/Dates.h"
#include "shell/Application.h"
#include "shell/FilePaths.h"
#include "shell/ShellOpen.h"

namespace velkarix {

namespace {

constexpr int DaysBeforeUpdate = 15;
constexpr std::uint32_t LastLaunchError = 31;  // WinExec gives more than that on success
constexpr int FileNotFoundFault = 53;

std::string DatabaseFile(Application& application) {
    return application.settings.InstallFolder() + "\\database.ini";
}

}  // namespace

void CheckForUpdate(Application& application) {
    const std::string last =
        application.settings.ReadIni("Update", "Last", "", DatabaseFile(application));
    const std::optional<OleDate> updated = application.machine.clock.VarDateFromStr(last);
    if (!updated) return;
    const SystemTime now = application.machine.clock.GetLocalTime();
    const int days =
        DayNumber(now.year, now.month, now.day) - static_cast<int>(std::trunc(*updated));
    if (days > DaysBeforeUpdate) LaunchUpdater(application, true);
}

void LaunchUpdater(Application& application, bool silent) {
    Settings& settings = application.settings;
    const std::string folder = settings.InstallFolder();
    if (!PathExists(application.machine.files, folder + "\\MorVane.exe")) {
        if (!silent) application.Tell(MessageIcon::Critical, "Update utlity not found.");
        return;
    }
    const std::string version =
        settings.ReadIni("Database", "Version", "", DatabaseFile(application));
    const std::string versionFile = folder + "\\version.ini";
    settings.WriteIni("Application", "Name", ApplicationTitle, versionFile);
    settings.WriteIni("Application", "Version", version, versionFile);
    const std::string command = "\"" + folder + "\\Morvane.exe\"" + (silent ? " -s" : "");
    if (application.machine.shell.WinExec(command, ShowNormal) <= LastLaunchError) {
        application.EndWithFault(FileNotFoundFault, "File not found");
    }
}

}  // namespace velkarix
