#include "tests/machine/MachineText.h"

namespace velkarix {
namespace {

void Visit(const std::string& path, const MemoryEntry& entry, const EntryVisitor& visit) {
    visit(path, entry);
    for (std::size_t i = 0; const auto child = entry.children.At(i); ++i) {
        Visit(path + "\\" + child->name, *child, visit);
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
    ForEachEntry(machine, [&text](const std::string& path, const MemoryEntry& entry) {
        text += path + " " + std::to_string(entry.attributes) + " ";
        text.append(entry.content.begin(), entry.content.end()).append("\n");
    });
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

std::string PathIn(Hive hive, const std::string& key) {
    const char* const root = hive == Hive::CurrentUser    ? "HKCU\\"
                             : hive == Hive::LocalMachine ? "HKLM\\"
                                                          : "HKLM\\SOFTWARE\\Classes\\";
    return root + key;
}

void ForEachEntry(const MemoryMachine& machine, const EntryVisitor& visit) {
    if (const auto drive = machine.disk.Find("C:\\")) Visit("C:", *drive, visit);
}

std::string ContentOf(const MemoryMachine& machine, const std::string& path) {
    return machine.disk.ContentOf(path).value_or("(no file)");
}

std::vector<std::string> KeptFiles(const MemoryMachine& machine) {
    std::vector<std::string> contents;
    const auto folder = machine.disk.Find("C:\\Velkarix\\Backup");
    for (std::size_t i = 0; folder && folder->children.At(i); ++i) {
        const Bytes& bytes = folder->children.At(i)->content;
        contents.emplace_back(bytes.begin(), bytes.end());
    }
    return contents;
}

}  // namespace velkarix
