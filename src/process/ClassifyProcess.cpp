#include "process/ClassifyProcess.h"

#include <algorithm>
#include <iterator>
#include <optional>

#include "base/Pattern.h"
#include "base/Text.h"
#include "shell/FilePaths.h"
#include "shell/modMD5.h"

namespace velkarix {

std::string ProcessKey(Application& application, const std::string& path) {
    const Machine& machine = application.machine;
    std::string key;
    if (PathExists(machine.files, path)) key = GetFileMD5(machine, path, application.progress);
    return key.empty() ? ToLower(path) : key;
}

bool IsBootProcessPath(const std::string& path) {
    // Of the first two the second character is a question mark, which as a pattern is any one.
    const char* const patterns[] = {"\\??\\*\\csrss.exe", "\\??\\*\\winlogon.exe",
                                    "\\systemroot\\*\\smss.exe"};
    return std::any_of(std::begin(patterns), std::end(patterns),
                       [&](const char* pattern) { return MatchesPattern(path, pattern); });
}

ProcessVerdict ClassifyProcess(Application& application, const SafeProcesses& safeList,
                               VerdictCache& cache, const std::string& path) {
    if (const std::optional<std::size_t> slot = cache.FindVerdictSlot(path)) {
        return cache.At(*slot);
    }
    ProcessVerdict verdict;
    verdict.Path = path;
    verdict.Key = ProcessKey(application, path);
    verdict.IsSystem = ListContains(application.SystemProcessList, verdict.Key);
    verdict.IsSafe = IsInSafeList(safeList, verdict.Key);
    if (!verdict.IsSafe && !verdict.IsSystem) {
        verdict.IsSuspicious = ListContains(application.SusProcessList, verdict.Key);
    }
    return cache.Add(verdict);
}

}  // namespace velkarix
