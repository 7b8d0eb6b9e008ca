// The running processes: path and id of each, in the system's order, got in the way that fits the
// system's family.
#pragma once

#include <string>
#include <vector>

#include "platform/Machine.h"

namespace velkarix {

struct ProcessEntry {
    std::string path;  // cleaned; a native path ("\\??\\...") stays as the system gives it
    ProcessId id = 0;

    friend bool operator==(const ProcessEntry&, const ProcessEntry&) = default;
};
using ProcessEntries = std::vector<ProcessEntry>;

// The 95 family is known by the text of the system's name alone: "98", "95" or "Millennium"
// anywhere in it.
bool ListsBySnapshot(const std::string& windowsName);

// A process that can't be opened or read leaves no entry; no snapshot leaves none at all.
ProcessEntries ListProcesses(const Machine& machine, const std::string& windowsName);

}  // namespace velkarix
