#include "tests/machine/NamedSystem.h"

#include <string_view>

namespace velkarix {
namespace {

struct SystemRow {
    NamedSystem system;
    std::uint32_t platform;
    std::uint32_t major;
    std::uint32_t minor;
    std::uint32_t build;  // the 95 family repeats the version in the upper half
    std::string_view servicePack;
    std::uint32_t versionNumber;
};

constexpr SystemRow systemRows[] = {
    {NamedSystem::Windows95, 1, 4, 0, 0x04000457, " B", 0xC4570004},
    {NamedSystem::Windows98, 1, 4, 10, 0x040A07CE, "", 0xC7CE0A04},
    {NamedSystem::Windows98SecondEdition, 1, 4, 10, 0x040A08AE, " A ", 0xC8AE0A04},
    {NamedSystem::WindowsMillennium, 1, 4, 90, 0x045A0BB8, "", 0xCBB85A04},
    {NamedSystem::WindowsNt351, 2, 3, 51, 1057, "Service Pack 5", 0x04213303},
    {NamedSystem::WindowsNt40, 2, 4, 0, 1381, "Service Pack 6", 0x05650004},
    {NamedSystem::Windows2000, 2, 5, 0, 2195, "Service Pack 4", 0x08930005},
    {NamedSystem::WindowsXp, 2, 5, 1, 2600, "Service Pack 3", 0x0A280105},
    {NamedSystem::WindowsServer2003, 2, 5, 2, 3790, "Service Pack 2", 0x0ECE0205},
};

constexpr std::size_t servicePackField = 128;  // bytes of szCSDVersion

const SystemRow& RowOf(NamedSystem system) {
    for (const SystemRow& row : systemRows) {
        if (row.system == system) {
            return row;
        }
    }
    return systemRows[0];
}

}  // namespace

VersionInfo VersionInfoOf(NamedSystem system) {
    const SystemRow& row = RowOf(system);
    std::string servicePack(row.servicePack);
    servicePack.resize(servicePackField, '\0');
    return {row.platform, row.major, row.minor, row.build, servicePack};
}

std::uint32_t VersionNumberOf(NamedSystem system) {
    return RowOf(system).versionNumber;
}

Family FamilyOf(NamedSystem system) {
    return RowOf(system).platform == 1 ? Family::Windows95 : Family::WindowsNt;
}

}  // namespace velkarix
