// Stopping a running process.
#pragma once

#include "shell/Application.h"

namespace velkarix {

// Whether a process of this id runs now.
bool ProcessRuns(const Machine& machine, ProcessId id);

// Stops the process and gives the system a second to clear it away. False, after a message, when
// a step of it fails.
bool StopProcess(Application& application, ProcessId id);

}  // namespace velkarix
