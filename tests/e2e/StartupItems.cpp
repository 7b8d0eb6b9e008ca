#include "StartupItems.h"

#include <array>

namespace velkarix::e2e {

std::ostream& operator<<(std::ostream& stream, const StartupItem& item) {
    return stream << item.title;
}

StartupItem MakeStartupItem(const char* title, const std::string& name,
                            const std::string& location) {
    constexpr std::size_t BehindHive = 5;
    StartupItem item{title, name, location};
    if (location.starts_with("Startup")) {
        const bool allUsers = location == "Startup LM";
        item.live = StartupFolder(allUsers);
        item.held = allUsers ? "DLMStartup" : "DCUStartup";
    } else {
        item.hive = location.starts_with("HKLM") ? HKEY_LOCAL_MACHINE : HKEY_CURRENT_USER;
        item.live = LiveStartupKeys + location.substr(BehindHive);
        item.held = HeldStartupKeys + location.substr(BehindHive);
    }
    return item;
}

const std::vector<StartupItem> StartupItems = {
    MakeStartupItem("MachineRun", "Sample Search Loader", "HKLM\\Run"),
    MakeStartupItem("MachineRunOnce", "Sample Restart", "HKLM\\RunOnce"),
    MakeStartupItem("MachineRunOnceEx", "Sample Setup", "HKLM\\RunOnceEx"),
    MakeStartupItem("MachineRunServices", "Sample Scheduler", "HKLM\\RunServices"),
    MakeStartupItem("MachineRunServicesOnce", "Sample Inventory", "HKLM\\RunServicesOnce"),
    MakeStartupItem("MachineFolder", "Sample Office Bar.lnk", "Startup LM"),
    MakeStartupItem("UserRun", "Sample Agent", "HKCU\\Run"),
    MakeStartupItem("UserRunOnce", "Sample Welcome", "HKCU\\RunOnce"),
    MakeStartupItem("UserRunOnceEx", "Sample Profile", "HKCU\\RunOnceEx"),
    MakeStartupItem("UserRunServices", "Sample Synchroniser", "HKCU\\RunServices"),
    MakeStartupItem("UserRunServicesOnce", "Sample Register", "HKCU\\RunServicesOnce"),
    MakeStartupItem("UserFolder", "Sample Notes.lnk", "Startup CU"),
};

std::string StartupFolder(bool allUsers) {
    std::array<char, MAX_PATH> folder{};
    HKEY key = nullptr;
    if (RegOpenKeyExA(allUsers ? HKEY_LOCAL_MACHINE : HKEY_CURRENT_USER,
                      "Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Shell Folders", 0,
                      KEY_READ, &key) != ERROR_SUCCESS) {
        return {};
    }
    DWORD size = MAX_PATH;
    RegQueryValueExA(key, allUsers ? "Common Startup" : "Startup", nullptr, nullptr,
                     reinterpret_cast<BYTE*>(folder.data()), &size);
    RegCloseKey(key);
    return folder.data();
}

const std::vector<StartupNode> StartupNodes = {
    {"All Items", "All Items"},
    {"All Items/Local Machine", "Local Machine"},
    {"All Items/Local Machine/Registry", "Local Machine Regitry"},
    {"All Items/Local Machine/Startup Folder", "Local Machine Startup Folder"},
    {"All Items/Current User", "Current User"},
    {"All Items/Current User/Registry", "Current User Registry"},
    {"All Items/Current User/Startup Folder", "Current User Startup Folder"},
};

std::string StartupCaption(const std::string& selection) {
    return "Startup Items (Current Selection: " + selection + ")";
}

}  // namespace velkarix::e2e
