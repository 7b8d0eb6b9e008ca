// What a call to the machine is about, told from the journal: for those who have something happen
// to it meanwhile.
#pragma once

#include <cstdint>

#include "tests/machine/MemoryMachine.h"

namespace velkarix {

// Somebody else removes the key, the value or the file that the call is about; one that is in use
// stays.
void TakeAway(MemoryMachine& machine, const Call& call);
// How many bytes the call, WriteFile or CopyFileA, is to put on the disk.
std::uint64_t BytesToWrite(const MemoryMachine& machine, const Call& call);
// What a CopyFileA has just made loses its last byte.
void CutTarget(MemoryMachine& machine, const Call& call);

}  // namespace velkarix
