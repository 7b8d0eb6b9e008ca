// A value of the registry as it lies there, whatever its type.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "base/Bytes.h"
#include "platform/Registry.h"

namespace velkarix {

struct RawValue {
    std::string name;
    std::uint32_t type = 0;  // of registryType, or any other number
    Bytes data;
};

// False for a name with a NUL in it, as only other ways into the registry can make: asked for it,
// the system would take what is named by the part before the NUL.
bool IsReachable(std::string_view name);

// Equal for names by which the system finds the same. A to Z are folded but where a letter may be
// the second byte of a double-byte character, which has no case.
std::string FoldedName(const std::string& name);

// Reads the value at `index` with a buffer that grows to the value's size. `nameCapacity` is in
// bytes with the NUL. Gives the system's code; a value that keeps growing faster than it can be
// read stays MoreData, as does one whose name is too long.
ErrorCode EnumRawValue(Registry& registry, KeyHandle key, std::uint32_t index,
                       std::uint32_t nameCapacity, RawValue& value);
// Reads the value of this name in the same way; InvalidData where it can't be reached by it.
ErrorCode QueryRawValue(Registry& registry, KeyHandle key, const std::string& name,
                        RawValue& value);

// What a REG_DWORD of that number holds.
Bytes DwordBytes(std::int32_t number);

// The memory for a value of a size that the registry claims; false when no real value is as large.
bool MakeRoom(Bytes& buffer, std::uint32_t size);

// Whether what stands in the registry is what was to be written: type and bytes, without the name.
// The NUL that the system puts behind a text that lacks one makes no difference.
bool StandsAs(const RawValue& standing, const RawValue& wanted);

}  // namespace velkarix
