// Keys and values as they lie in the registry, to be compared and put back.
#pragma once

#include <string>

#include "platform/Registry.h"
#include "registry/RawValue.h"

namespace velkarix {

// False only where the system says that there is no such key; one that can't be opened is there.
bool KeyExists(Registry& registry, Hive hive, const std::string& key);

// A value of any type and size. Gives the system's code: FileNotFound when it or its key is gone.
ErrorCode ReadRawValue(Registry& registry, Hive hive, const std::string& key,
                       const std::string& valueName, RawValue& value);
// Into a key that is there. Gives the system's code, and is to be read back by who depends on it.
ErrorCode WriteRawValue(Registry& registry, Hive hive, const std::string& key,
                        const RawValue& value);

// Whether every value (name, type and bytes) and every subkey of `part` stands in `whole` too:
// Success; CantWrite where it doesn't; the code of what couldn't be read. `whole` may hold more.
ErrorCode ContainsTree(Registry& registry, Hive hive, const std::string& whole,
                       const std::string& part);
// The same, whatever the values hold.
ErrorCode ContainsNames(Registry& registry, Hive hive, const std::string& whole,
                        const std::string& part);

}  // namespace velkarix
