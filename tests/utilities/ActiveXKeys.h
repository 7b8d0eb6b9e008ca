// The keys where the browser looks up ActiveX controls, on a machine in memory.
#pragma once

#include <cstdint>
#include <optional>
#include <sstream>
#include <string>

#include "tests/machine/MemoryMachine.h"

namespace velkarix {

inline constexpr const char* AllKeys =
    "SOFTWARE\\Microsoft\\Internet Explorer\\ActiveX Compatibility";
inline constexpr std::uint32_t KillBit = 0x400;

inline std::string KeyOf(const std::string& name) {
    return AllKeys + ("\\" + name);
}

// Nothing where the control's key has no such value.
inline std::optional<std::uint32_t> FlagsOf(const MemoryHives& hives, const std::string& name) {
    const auto value = hives.ValueAt(Hive::LocalMachine, KeyOf(name), "Compatibility Flags");
    if (!value || value->type != registryType::Dword || value->data.size() != 4) return {};
    std::uint32_t flags = 0;
    for (std::size_t i = value->data.size(); i > 0; --i) flags = flags << 8 | value->data[i - 1];
    return flags;
}

// The registry as text, without what stands in that key.
inline std::string OutsideOf(const MemoryMachine& machine) {
    std::istringstream all(machine.registry.TreeText(Hive::LocalMachine, "") +
                           machine.registry.TreeText(Hive::CurrentUser, ""));
    std::string outside;
    std::size_t keyIndent = std::string::npos;  // while in that key
    for (std::string line; std::getline(all, line);) {
        const std::size_t indent = line.find_first_not_of(' ');
        if (keyIndent != std::string::npos && indent > keyIndent) continue;
        keyIndent = line.ends_with("[ActiveX Compatibility]") ? indent : std::string::npos;
        outside += line + "\n";
    }
    return outside;
}

}  // namespace velkarix
