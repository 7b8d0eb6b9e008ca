// What the sample machine starts at logon: one item for each place, where it lies while it is
// enabled and while it is disabled, and the nodes of the tree that chooses among the places.
#pragma once

#include <windows.h>

#include <ostream>
#include <string>
#include <vector>

namespace velkarix::e2e {

// A value of a key, or a shortcut in a folder.
struct StartupItem {
    const char* title;  // of the test that is run for it
    std::string name;
    std::string location;  // as the list tells it
    HKEY hive = nullptr;   // null for a shortcut
    std::string live = {};
    std::string held = {};  // of a shortcut: the name of the folder in the installation
};
std::ostream& operator<<(std::ostream& stream, const StartupItem& item);

// The key or folder of a location is filled in by its text.
StartupItem MakeStartupItem(const char* title, const std::string& name,
                            const std::string& location);

extern const std::vector<StartupItem> StartupItems;

// The keys of a hive that Windows starts programs from, without the common beginning.
inline constexpr const char* RunKeyNames[] = {"Run", "RunOnce", "RunOnceEx", "RunServices",
                                              "RunServicesOnce"};
// Where they are, and where the disabled items of the same names are.
inline constexpr const char* LiveStartupKeys = "Software\\Microsoft\\Windows\\CurrentVersion\\";
inline constexpr const char* HeldStartupKeys = "Software\\Velkarix\\Disabled\\";

// The folder of shortcuts that the system names, for all users or for the one.
std::string StartupFolder(bool allUsers);

// The sample machine's items of keys that Wine empties whenever its server starts.
struct VolatileItem {
    const char* key;
    const char* name;
    const char* command;
};
inline constexpr VolatileItem VolatileItems[] = {
    {"RunOnce", "Sample Restart", "\"C:\\Samples\\SampleIdle.exe\" /resume"},
    {"RunServicesOnce", "Sample Inventory", "C:\\Program Files\\Sample Inventory\\count.exe"},
};

struct StartupNode {
    const char* path;       // the texts on the way to it
    const char* selection;  // as the frame's caption names it
};
// From top to bottom.
extern const std::vector<StartupNode> StartupNodes;

// The frame's caption when that is selected.
std::string StartupCaption(const std::string& selection);

}  // namespace velkarix::e2e
