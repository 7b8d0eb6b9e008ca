// Where Windows looks for what it starts at logon, and where the program keeps what is switched
// off.
#pragma once

#include <span>
#include <string>

#include "shell/Application.h"

namespace velkarix {

// A key of named values; live and held ones have the same location.
struct RunKey {
    const char* location;  // as the list shows it
    Hive hive;
    const char* suffix;  // of the key's name
};
extern const std::span<const RunKey> RunKeys;

// A folder of shortcuts.
struct StartupFolder {
    const char* location;
    Hive hive;  // that names the folder
    const char* valueName;
    const char* heldFolder;  // in the InstallFolder
};
extern const std::span<const StartupFolder> StartupFolders;

// Null when the location isn't one of those.
const RunKey* FindRunKey(const std::string& location);
const StartupFolder* FindStartupFolder(const std::string& location);

// The key that holds the values which are on, or off.
std::string RunKeyPath(const Application& application, const RunKey& key, bool enabled);

}  // namespace velkarix
