// What the report of the installed applications says on the sample machine.
#pragma once

#include <string>
#include <vector>

namespace velkarix::e2e {

// The blocks in the order of the list.
std::vector<std::string> InstalledBlocks();

}  // namespace velkarix::e2e
