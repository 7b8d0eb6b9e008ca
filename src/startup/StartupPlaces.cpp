#include "startup/StartupPlaces.h"

#include <algorithm>

namespace velkarix {

namespace {

constexpr RunKey AllRunKeys[] = {
    {"HKLM\\Run", Hive::LocalMachine, ""},
    {"HKLM\\RunOnce", Hive::LocalMachine, "Once"},
    {"HKLM\\RunOnceEx", Hive::LocalMachine, "OnceEx"},
    {"HKLM\\RunServices", Hive::LocalMachine, "Services"},
    {"HKLM\\RunServicesOnce", Hive::LocalMachine, "ServicesOnce"},
    {"HKCU\\Run", Hive::CurrentUser, ""},
    {"HKCU\\RunOnce", Hive::CurrentUser, "Once"},
    {"HKCU\\RunOnceEx", Hive::CurrentUser, "OnceEx"},
    {"HKCU\\RunServices", Hive::CurrentUser, "Services"},
    {"HKCU\\RunServicesOnce", Hive::CurrentUser, "ServicesOnce"},
};

constexpr StartupFolder AllStartupFolders[] = {
    {"Startup LM", Hive::LocalMachine, "Common Startup", "DLMStartup"},
    {"Startup CU", Hive::CurrentUser, "Startup", "DCUStartup"},
};

template <typename Place>
const Place* FindPlace(std::span<const Place> places, const std::string& location) {
    const auto found = std::find_if(places.begin(), places.end(),
                                    [&](const Place& place) { return location == place.location; });
    return found == places.end() ? nullptr : &*found;
}

}  // namespace

const std::span<const RunKey> RunKeys = AllRunKeys;
const std::span<const StartupFolder> StartupFolders = AllStartupFolders;

const RunKey* FindRunKey(const std::string& location) {
    return FindPlace(RunKeys, location);
}

const StartupFolder* FindStartupFolder(const std::string& location) {
    return FindPlace(StartupFolders, location);
}

std::string RunKeyPath(const Application& application, const RunKey& key, bool enabled) {
    const std::string base =
        enabled ? "Software\\Microsoft\\Windows\\CurrentVersion\\" : application.DisabledRoot;
    return base + "Run" + key.suffix;
}

}  // namespace velkarix
