// One value of a registry file, and which names such a file can hold.
#pragma once

#include <string>
#include <string_view>

#include "registry/RawValue.h"

namespace velkarix {

// Whether a name comes back as it was when the file is merged: not one with control characters.
bool IsWritableName(std::string_view name);
// The same inside quotes, where backslashes are doubled: on systems with characters of two bytes
// one behind a byte of the code page's upper half may be such a character's second.
bool IsWritableValueName(std::string_view name);

// `"name"=data` with its line break, in several lines where the data is long. Any type, any bytes.
std::string RegistryFileValue(const RawValue& value);

}  // namespace velkarix
