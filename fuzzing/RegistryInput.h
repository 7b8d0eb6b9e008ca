// Names and values of the registry out of an input: those that have made trouble on users' machines
// by their number, and any others by their bytes.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "fuzzing/FuzzTarget.h"
#include "registry/RawValue.h"
#include "tests/machine/MemoryHives.h"

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

// Whether a backslash in the text may be the second byte of a double-byte character.
bool HasDoubtfulBackslash(std::string_view name);

// Whether a registry file can hold a value of that name, or a key with all below it: no control
// characters can stand there, nor in a value's name a backslash that may be half of a character.
bool HasControls(std::string_view name);
bool CanBeWritten(std::string_view name);
bool CanBeWritten(const MemoryHives& hives, Hive hive, const std::string& key);

// Writes a value with its own type and bytes.
FuzzSeed& PutValue(FuzzSeed& seed, std::uint32_t type, std::string_view data);

}  // namespace velkarix
