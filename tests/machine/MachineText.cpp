#include "tests/machine/MachineText.h"

namespace velkarix {
namespace {

void Append(const std::string& folder, const MemoryEntry& entry, std::string& text) {
    const std::string path = folder + entry.name;
    text += path + " " + std::to_string(entry.attributes) + " ";
    text.append(entry.content.begin(), entry.content.end()).append("\n");
    for (std::size_t i = 0; const auto child = entry.children.At(i); ++i) {
        Append(path + "\\", *child, text);
    }
}

}  // namespace

std::string RegistryText(const MemoryMachine& machine) {
    // The classes are a part of the machine's hive.
    return machine.registry.TreeText(Hive::LocalMachine, "") +
           machine.registry.TreeText(Hive::CurrentUser, "");
}

std::string DiskText(const MemoryMachine& machine) {
    std::string text;
    if (const auto drive = machine.disk.Find("C:\\")) Append("", *drive, text);
    return text;
}

std::string MachineText(const MemoryMachine& machine) {
    std::string text = RegistryText(machine) + DiskText(machine);
    for (const ProcessId id : machine.processes.Running()) text += std::to_string(id) + " runs\n";
    for (const std::string& path : machine.files.DeletedAtNextStart()) text += path + " goes\n";
    for (const Launch& launch : machine.shell.Launched()) text += launch.commandLine + " started\n";
    for (const ShellOpening& each : machine.shell.Opened()) text += each.file + " opened\n";
    return text;
}

}  // namespace velkarix
