// A machine as text, to compare states: all of it that a program started later can see of an
// earlier one. And the parts of it that texts of other forms are made of.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "tests/machine/MemoryMachine.h"

namespace velkarix {

std::string RegistryText(const MemoryMachine& machine);
// The drive C:, a line for each file and folder.
std::string DiskText(const MemoryMachine& machine);
// Registry, disk, the processes that run, what is to be deleted at the next start, and what was
// started and opened.
std::string MachineText(const MemoryMachine& machine);

// "HKLM\\SOFTWARE\\Classes\\key": the classes are a part of the machine's hive.
std::string PathIn(Hive hive, const std::string& key);
// Each file and folder of the drive C: with its path, a folder before what is in it, from "C:" on.
using EntryVisitor = std::function<void(const std::string& path, const MemoryEntry& entry)>;
void ForEachEntry(const MemoryMachine& machine, const EntryVisitor& visit);
// The bytes of a file; "(no file)" where there is none.
std::string ContentOf(const MemoryMachine& machine, const std::string& path);
// The bytes of each file that the program has kept of what it changed or took away.
std::vector<std::string> KeptFiles(const MemoryMachine& machine);

}  // namespace velkarix
