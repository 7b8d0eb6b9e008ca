#include "utilities/ActiveXList.h"

#include <vector>

#include "shell/FilePaths.h"
#include "shell/TextFile.h"

namespace velkarix {

namespace {

// No system has longer paths. Some count the length in 16 bits, where a longer one may come out as
// the path of quite another key.
constexpr std::size_t LongestKey = 32767;

// Whether the system, given `key`, comes to a key of its own below CompatibilityKeys. Behind a
// backslash at the start of `name` it might find nothing and stay where it is, and it takes a NUL
// for the end of the text: the keys of all controls would be at stake.
bool IsBelow(const std::string& name, const std::string& key) {
    return !name.empty() && name.front() != '\\' && name.find('\0') == std::string::npos &&
           key.size() <= LongestKey;
}

}  // namespace

ErrorCode ForEachListedKey(FileSystem& files, const std::string& listFile,
                           const std::function<void(const std::string& key)>& work) {
    if (!PathExists(files, listFile)) return error::Success;
    std::string text;
    const ErrorCode result = ReadTextFile(files, listFile, text);
    // A line that broke off may be the beginning of another name.
    if (result != error::Success) text.resize(text.find_last_of("\r\n") + 1);
    for (const std::string& line : SplitLines(text)) {
        const std::string key = CompatibilityKeys + line;
        if (IsBelow(line, key)) work(key);
    }
    return result;
}

}  // namespace velkarix
