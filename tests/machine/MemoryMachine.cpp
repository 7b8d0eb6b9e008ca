#include "tests/machine/MemoryMachine.h"

namespace velkarix {

MemoryMachine::MemoryMachine(NamedSystem named) {
    SetSystem(named);
}

Machine MemoryMachine::Parts() {
    return {registry, profileFiles, versionResources, files,  clock,   processes,
            token,    shell,        shortcuts,        system, windows, cryptography};
}

void MemoryMachine::FailNext(const std::string& call, ErrorCode error) {
    journal_.FailNext(call, error);
}

void MemoryMachine::FailAlways(const std::string& call, ErrorCode error) {
    journal_.FailAlways(call, error);
}

void MemoryMachine::SetSystem(NamedSystem named) {
    const Family family = FamilyOf(named);
    system.SetSystem(named);
    registry.SetFamily(family);
    files.SetFamily(family);
    processes.SetFamily(family);
    processes.SetHasPsapi(family == Family::WindowsNt);
    processes.SetHasToolhelp(named != NamedSystem::WindowsNt351 &&
                             named != NamedSystem::WindowsNt40);
    token.SetFamily(family);
    // Windows 95 and NT 4.0 come without the one, NT 3.51 without both.
    shortcuts.SetHasScriptShell(named != NamedSystem::Windows95 &&
                                named != NamedSystem::WindowsNt351 &&
                                named != NamedSystem::WindowsNt40);
    shortcuts.SetHasShellLink(named != NamedSystem::WindowsNt351);
}

void MemoryMachine::SetFamily(Family family) {
    SetSystem(family == Family::Windows95 ? NamedSystem::Windows98 : NamedSystem::WindowsXp);
}

MemoryProcess& MemoryMachine::AddProcess(ProcessId id, const std::string& path) {
    return processes.Add(id, path);
}

void MemoryMachine::AddKey(Hive hive, const std::string& key) {
    registry.AddKey(hive, key);
}

void MemoryMachine::SetValue(Hive hive, const std::string& key, const std::string& name,
                             const std::string& text) {
    registry.SetValue(hive, key, name, text);
}

void MemoryMachine::SetDword(Hive hive, const std::string& key, const std::string& name,
                             std::uint32_t value) {
    registry.SetDword(hive, key, name, value);
}

}  // namespace velkarix
