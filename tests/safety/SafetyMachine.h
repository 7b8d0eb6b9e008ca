// A machine where every command of the program finds something to do.
#pragma once

#include "tests/machine/MemoryMachine.h"

namespace velkarix {

void PutSafetyMachine(MemoryMachine& machine);

// The same for a program that has run before but has deleted and disabled nothing yet, on a system
// of the older family.
void PutOlderSafetyMachine(MemoryMachine& machine);

}  // namespace velkarix
