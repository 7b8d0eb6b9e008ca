#include "process/SafeList.h"

#include <algorithm>

#include "base/Text.h"
#include "shell/TextFile.h"
#include "shell/TextReplacement.h"

namespace velkarix {

ErrorCode LoadSafeList(FileSystem& files, SafeProcesses& list, const std::string& fileName) {
    std::string text;
    const ErrorCode result = ReadReplacedTextFile(files, fileName, text);
    list = SplitLines(result == error::Success ? text : std::string());
    return result == error::FileNotFound ? error::Success : result;
}

bool IsInSafeList(const SafeProcesses& list, const std::string& key) {
    return !key.empty() && std::find(list.begin(), list.end(), key) != list.end();
}

bool RemoveFromSafeList(SafeProcesses& list, const std::string& key) {
    const auto found = std::find(list.begin(), list.end(), key);
    if (found == list.end()) return false;
    list.erase(found);
    return true;
}

ErrorCode SaveSafeList(FileSystem& files, const SafeProcesses& list, const std::string& fileName,
                       EmptyItems emptyItems) {
    std::string text;
    for (const std::string& item : list) {
        if (item.empty() && emptyItems == EmptyItems::Skip) continue;
        text.append(item).append(LineBreak);
    }
    return ReplaceTextFile(files, fileName, text);
}

}  // namespace velkarix
