// A machine as text, to compare states: all of it that a program started later can see of an
// earlier one.
#pragma once

#include <string>

#include "tests/machine/MemoryMachine.h"

namespace velkarix {

std::string RegistryText(const MemoryMachine& machine);
// The drive C:, a line for each file and folder.
std::string DiskText(const MemoryMachine& machine);
// Registry, disk, the processes that run, what is to be deleted at the next start, and what was
// started and opened.
std::string MachineText(const MemoryMachine& machine);

}  // namespace velkarix
