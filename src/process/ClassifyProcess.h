// The rule that judges a process by the content of its file.
#pragma once

#include <string>

#include "process/ProcessVerdict.h"
#include "process/SafeList.h"
#include "process/VerdictCache.h"
#include "shell/Application.h"

namespace velkarix {

// What a program file is known by: its MD5, or its lower-case path when it can't be hashed.
std::string ProcessKey(Application& application, const std::string& path);

// Whether a lower-case path is one of the three that the system's first processes report in its
// own native form, which names no file on disk.
bool IsBootProcessPath(const std::string& path);

// Judges the file at a lower-case path. One on the system's or the user's safe list isn't looked
// up among the suspicious ones. The cache's verdict counts where there is one.
ProcessVerdict ClassifyProcess(Application& application, const SafeProcesses& safeList,
                               VerdictCache& cache, const std::string& path);

}  // namespace velkarix
