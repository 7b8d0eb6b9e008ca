// What is known of one program file, judged by its content against the lists.
#pragma once

#include <string>

namespace velkarix {

struct ProcessVerdict {
    std::string Key;      // the file's MD5 in lower case, or its lower-case path when it has none
    bool IsSafe = false;  // on the user's safe list
    bool IsSuspicious = false;  // worked out only for a file that is neither safe nor the system's
    bool IsSystem = false;
    std::string Path;  // the lower-case full path, by which the verdict is found again
};

}  // namespace velkarix
