// Merges a registry file into the registry in memory, as the system's own editor does.
#pragma once

#include <string>

#include "tests/machine/MemoryHives.h"

namespace velkarix {

// `text` is a whole file of the form REGEDIT4. False at the first line that isn't one of that
// form; what stands before it is merged then.
bool MergeRegistryFile(MemoryHives& hives, const std::string& text);

}  // namespace velkarix
