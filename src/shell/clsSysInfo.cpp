#include "shell/clsSysInfo.h"

#include <cstdint>
#include <optional>

#include "base/Text.h"

namespace velkarix {

namespace {

constexpr std::uint32_t Any = 0xFFFFFFFF;

struct NamedVersion {
    std::uint32_t platform;
    std::uint32_t major;
    std::uint32_t minor;
    std::uint32_t buildsBelow;  // the name goes for builds less than this
    const char* name;
};

// The first row that fits gives the name. The 95 family is told by its minor version alone; its
// build number also holds the version in the upper half, and is compared as it comes.
const NamedVersion NamedVersions[] = {
    {1, Any, 0, Any, "Microsoft Windows 95"},
    {1, Any, 10, 2183, "Microsoft Windows 98"},
    {1, Any, 10, Any, "Microsoft Windows 98 Second Edition"},
    {1, Any, 90, Any, "Microsoft Windows Millennium Edition"},
    {2, 3, Any, Any, "Microsoft Windows NT 3.51"},
    {2, 4, Any, Any, "Microsoft Windows NT 4.0"},
    {2, 5, 0, Any, "Microsoft Windows 2000"},
    {2, 5, 1, Any, "Microsoft Windows XP"},
    {2, 5, Any, Any, "Microsoft Windows Sever 2003"},
};

bool Fits(std::uint32_t wanted, std::uint32_t actual) {
    return wanted == Any || wanted == actual;
}

std::string NameOf(const VersionInfo& version) {
    for (const NamedVersion& row : NamedVersions) {
        const bool buildFits = row.buildsBelow == Any || version.build < row.buildsBelow;
        if (row.platform == version.platform && Fits(row.major, version.major) &&
            Fits(row.minor, version.minor) && buildFits) {
            return row.name;
        }
    }
    return {};
}

}  // namespace

SystemDescription clsSysInfo::sysInfo() {
    constexpr std::uint32_t ComputerNameCapacity = 16;
    constexpr std::uint32_t UserNameCapacity = 255;

    SystemDescription facts;
    if (const std::optional<VersionInfo> version = system_.GetVersionExA()) {
        facts.windowsName = NameOf(*version);
        facts.windowsBuild = std::to_string(version->major) + "." + std::to_string(version->minor) +
                             "." + std::to_string(version->build);
        facts.servicePack = version->servicePack;
    }
    facts.computerName = TrimAtNull(system_.GetComputerNameA(ComputerNameCapacity).value_or(""));
    if (const std::optional<std::string> user = system_.GetUserNameA(UserNameCapacity)) {
        facts.userName = *user + '\0';
    }
    facts.explorerVersion = registry_.GetStringValue(
        Hive::LocalMachine, "SOFTWARE\\Microsoft\\Internet Explorer", "Version");
    return facts;
}

}  // namespace velkarix
