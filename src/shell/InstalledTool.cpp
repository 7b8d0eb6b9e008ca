#include "shell/InstalledTool.h"

#include <cstdint>

#include "shell/Application.h"
#include "shell/FilePaths.h"
#include "shell/ShellOpen.h"

namespace velkarix {

namespace {

constexpr std::uint32_t LastLaunchError = 31;  // WinExec gives more than that on success
constexpr int FileNotFoundFault = 53;

}  // namespace

bool FindTool(Application& application, const InstalledTool& tool, bool silent) {
    const std::string path = application.settings.InstallFolder() + tool.tested;
    const bool found = PathExists(application.machine.files, path);
    if (!found && !silent) application.Tell(MessageIcon::Critical, tool.missing);
    return found;
}

void StartTool(Application& application, const InstalledTool& tool, const std::string& arguments) {
    const std::string command =
        "\"" + application.settings.InstallFolder() + tool.launched + "\"" + arguments;
    if (application.machine.shell.WinExec(command, ShowNormal) <= LastLaunchError) {
        application.EndWithFault(FileNotFoundFault, "File not found");
    }
}

}  // namespace velkarix
