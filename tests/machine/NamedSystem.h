// The nine systems that the program knows by name, and what each says of itself.
#pragma once

#include <array>
#include <cstdint>

#include "platform/SystemFacts.h"

namespace velkarix {

enum class Family { Windows95, WindowsNt };

enum class NamedSystem {
    Windows95,
    Windows98,
    Windows98SecondEdition,
    WindowsMillennium,
    WindowsNt351,
    WindowsNt40,
    Windows2000,
    WindowsXp,
    WindowsServer2003,
};

// To run a test on each of them.
inline constexpr std::array allNamedSystems = {
    NamedSystem::Windows95,         NamedSystem::Windows98,    NamedSystem::Windows98SecondEdition,
    NamedSystem::WindowsMillennium, NamedSystem::WindowsNt351, NamedSystem::WindowsNt40,
    NamedSystem::Windows2000,       NamedSystem::WindowsXp,    NamedSystem::WindowsServer2003,
};

// What GetVersionExA gives there.
VersionInfo VersionInfoOf(NamedSystem system);
// What GetVersion gives there.
std::uint32_t VersionNumberOf(NamedSystem system);
Family FamilyOf(NamedSystem system);

}  // namespace velkarix
