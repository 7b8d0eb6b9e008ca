// Copying a key where the system's shell library has no call for it.
#pragma once

#include <string>

#include "platform/Registry.h"

namespace velkarix {

// Copies all values, of any type, and all subkeys of `subKey` below `source` into the open key
// `destination`. Ends at the first thing that can't be copied and gives its code, so that Success
// means that nothing is missing from the copy.
ErrorCode CopyKeyTree(Registry& registry, KeyHandle source, const std::string& subKey,
                      KeyHandle destination);

}  // namespace velkarix
