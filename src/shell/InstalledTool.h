// Programs that lie beside this one, and how they are started.
#pragma once

#include <string>

namespace velkarix {

class Application;

// One such program. The two names may differ in their capitals: they are one file on Windows.
struct InstalledTool {
    const char* tested;    // in the InstallFolder, with its backslash in front
    const char* launched;  // likewise
    const char* missing;   // what the user is told where there is no such file
};

// Whether the program is there. The user is told where it isn't, but not when that is to be silent.
bool FindTool(Application& application, const InstalledTool& tool, bool silent = false);
// Starts it in a normal window with these arguments behind its quoted path, and doesn't wait. One
// that can't be started is a fault that ends the program.
void StartTool(Application& application, const InstalledTool& tool,
               const std::string& arguments = {});

}  // namespace velkarix
