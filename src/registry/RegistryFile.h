// Keys and values as the text of a registry file. The form is the one of the first line REGEDIT4,
// in bytes of the system's code page: every Windows can merge it, by a double click on the file.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/Registry.h"
#include "registry/RawValue.h"

namespace velkarix {

// What such a file begins with; sections follow, each with an empty line at its end.
inline constexpr std::string_view RegistryFileHeader = "REGEDIT4\r\n\r\n";

// Each appends to `text` and gives Success, or leaves `text` as it was: FileNotFound when the key
// or value is gone, the code of what couldn't be read, or InvalidData for a name that merging
// wouldn't bring back.

// A section for the key and for each key below it, with all their values.
ErrorCode ExportKeyTree(Registry& registry, Hive hive, const std::string& key, std::string& text);
// A section of one value that stands in the registry.
ErrorCode ExportValue(Registry& registry, Hive hive, const std::string& key,
                      const std::string& valueName, std::string& text);
// A section of values that were read before.
ErrorCode ExportSection(Hive hive, const std::string& key, const std::vector<RawValue>& values,
                        std::string& text);

}  // namespace velkarix
