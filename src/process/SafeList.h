// The user's own list of program files that the filtered view hides, kept in a file beside the
// program: one key a line, each the MD5 of a file or, without one, its lower-case path.
#pragma once

#include <string>
#include <vector>

#include "platform/FileSystem.h"

namespace velkarix {

using SafeProcesses = std::vector<std::string>;  // keys in the order of the file

// Makes `list` the file's lines; empty when the file is missing, which is a Success too, or can't
// be read: then it gives the code of why.
ErrorCode LoadSafeList(FileSystem& files, SafeProcesses& list, const std::string& fileName);
// False for an empty key.
bool IsInSafeList(const SafeProcesses& list, const std::string& key);
// Removes the first item equal to `key`. False when there is none.
bool RemoveFromSafeList(SafeProcesses& list, const std::string& key);

// Replaces the file, of which the old or the new text stands wherever that is cut short; the code
// of what failed, or Success.
enum class EmptyItems { Write, Skip };
ErrorCode SaveSafeList(FileSystem& files, const SafeProcesses& list, const std::string& fileName,
                       EmptyItems emptyItems);

}  // namespace velkarix
