#include "shell/Updater.h"

#include <cmath>
#include <optional>
#include <string>

#include "base/Dates.h"
#include "shell/Application.h"
#include "shell/InstalledTool.h"

namespace velkarix {

namespace {

constexpr int DaysBeforeUpdate = 15;
constexpr InstalledTool UpdateProgram{"\\MorVane.exe", "\\Morvane.exe", "Update utlity not found."};

}  // namespace

std::string DatabaseFile(Settings& settings) {
    return settings.InstallFolder() + "\\database.ini";
}

void CheckForUpdate(Application& application) {
    const std::string last =
        application.settings.ReadIni("Update", "Last", "", DatabaseFile(application.settings));
    const std::optional<OleDate> updated = application.machine.clock.VarDateFromStr(last);
    if (!updated) return;
    const SystemTime now = application.machine.clock.GetLocalTime();
    const int days =
        DayNumber(now.year, now.month, now.day) - static_cast<int>(std::trunc(*updated));
    if (days > DaysBeforeUpdate) LaunchUpdater(application, true);
}

void LaunchUpdater(Application& application, bool silent) {
    if (!FindTool(application, UpdateProgram, silent)) return;
    Settings& settings = application.settings;
    const std::string version = settings.ReadIni("Database", "Version", "", DatabaseFile(settings));
    const std::string versionFile = settings.InstallFolder() + "\\version.ini";
    settings.WriteIni("Application", "Name", ApplicationTitle, versionFile);
    settings.WriteIni("Application", "Version", version, versionFile);
    StartTool(application, UpdateProgram, silent ? " -s" : "");
}

}  // namespace velkarix
