// What the report of the startup page says on the sample machine.
#pragma once

#include <string>
#include <vector>

#include "StartupItems.h"

namespace velkarix::e2e {

// The label of a block's first line.
inline constexpr const char* StartupItemLabel = "Startup Item      : ";

// The blocks of what a node of the tree shows, in the order of the list.
std::vector<std::string> StartupBlocks(const StartupNode& node);

}  // namespace velkarix::e2e
