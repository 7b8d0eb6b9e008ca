// What lies directly in an open key, listed to its end or not at all.
#pragma once

#include <string>
#include <vector>

#include "platform/Registry.h"
#include "registry/RawValue.h"

namespace velkarix {

// No tree of the system is deeper; a link that leads back up makes an endless one.
inline constexpr int DeepestKeyLevel = 512;

// Each replaces the list. Success means that nothing is missing from it, and that all in it can be
// reached by its name; else the code of what couldn't be read, InvalidData for such a name.
ErrorCode ListValues(Registry& registry, KeyHandle key, std::vector<RawValue>& values);
ErrorCode ListSubKeys(Registry& registry, KeyHandle key, std::vector<std::string>& names);

}  // namespace velkarix
