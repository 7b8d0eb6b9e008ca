// A small machine with something in every list that the full report tells of.
#pragma once

#include "tests/machine/MemoryMachine.h"

namespace velkarix {

void PutReportMachine(MemoryMachine& machine);

}  // namespace velkarix
