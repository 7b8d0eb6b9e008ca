// Moving one value between two keys of a hive, in the form that its kind of item has.
#pragma once

#include <string>

#include "registry/RawValue.h"
#include "shell/Application.h"

namespace velkarix {

struct ValueMove {
    std::string listName;   // names the registry file that may be kept
    const char* operation;  // as messages name it
    Hive hive;
    std::string source;  // the keys
    std::string destination;
    std::string valueName;
};

// How a value arrives.
struct ValueForm {
    // What a value of any type and bytes becomes.
    RawValue (*become)(const RawValue& value);
    // Reads it at the source and writes it at the destination by the layer's operations. False
    // when the layer told the user that it can't.
    bool (*transfer)(modRegistry& registry, const ValueMove& move);
};

// REG_SZ: the text up to the first NUL.
extern const ValueForm textForm;
// REG_BINARY: the bytes; less than two of them become one zero byte.
extern const ValueForm markForm;

// Writes, compares, and only then deletes at the source. Keeps the value in a registry file first
// where the form changes it. True when the value arrived and its deletion at the source was asked
// for.
bool MoveValue(Application& application, const ValueMove& move, const ValueForm& form);

}  // namespace velkarix
