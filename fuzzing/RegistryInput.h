// Names and values of the registry out of an input: those that have made trouble on users' machines
// by their number, and any others by their bytes.
#pragma once

#include <cstddef>
#include <string>

#include "fuzzing/FuzzTarget.h"
#include "registry/RawValue.h"

namespace velkarix {

extern const std::size_t HardNameCount;
extern const std::size_t HardValueCount;
const std::string& HardName(std::size_t number);

// What stands before a name, or a value, that is told by its bytes.
inline constexpr std::size_t Literal = 255;

std::string TakeValueName(FuzzInput& input);
// One level of a key: not empty, without a backslash, and no longer than keys can be.
std::string TakeKeyName(FuzzInput& input);
// Without a name.
RawValue TakeValue(FuzzInput& input);

// Writes a value with its own type and bytes.
FuzzSeed& PutValue(FuzzSeed& seed, std::uint32_t type, std::string_view data);

}  // namespace velkarix
