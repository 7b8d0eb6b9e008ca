// What the pages read of a machine, out of an input: any value at the places where they look for
// items, classes, applications and settings, shortcuts in the folders, program files and processes.
#pragma once

#include <cstddef>

#include "fuzzing/FuzzTarget.h"
#include "shell/Application.h"
#include "tests/machine/MemoryMachine.h"

namespace velkarix {

enum class PagePart {
    Item,       // of one of the browser page's lists
    Class,      // the registration of one
    Run,        // a value that is started at logon
    Installed,  // of an application, or of its record
    Setting,
    Shortcut,
    Program,   // the version resource of ItemFile
    Process,   // with its file, or with any path
    SafeList,  // of processes
    Count
};

inline constexpr const char* ItemFile = "C:\\WINDOWS\\item.dll";

// The folders and the file that the parts below name.
void PutCommonParts(MemoryMachine& machine);
void PutPart(FuzzInput& input, PagePart part, const Application& application,
             MemoryMachine& machine);

// Writes the beginning of such a part; a value comes behind.
FuzzSeed& PutItemSeed(FuzzSeed& seed, std::size_t list, std::size_t place, bool enabled,
                      std::string_view name, std::string_view valueName);
FuzzSeed& PutProcessSeed(FuzzSeed& seed, std::size_t number, std::size_t kind);
FuzzSeed& PutRunSeed(FuzzSeed& seed, std::size_t run, bool enabled, std::string_view name);
FuzzSeed& PutInstalledSeed(FuzzSeed& seed, bool isRecord, std::string_view key,
                           std::string_view valueName);

}  // namespace velkarix
