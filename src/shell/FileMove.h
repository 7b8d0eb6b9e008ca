// Files that are moved and deleted without ever letting go of the last copy.
#pragma once

#include <string>

#include "shell/Application.h"

namespace velkarix {

// Whether something is at the path. Asked in two ways, since one that fails says that nothing is
// there, and that would be written over.
bool IsTaken(FileSystem& files, const std::string& path);

// Each gives the code of what failed, or Success.

// Keeps a copy of the file in the backup folder, under the stamp of this moment, an underscore and
// its name. Success only when the copy holds the same bytes.
ErrorCode KeepFile(Application& application, const std::string& path);

// Moves a file between two folders, given without a backslash at the end, under the same name. A
// file of that name at the destination is replaced, and kept in the backup folder before. The copy
// is compared with the source before that is deleted; that the source can't be deleted then is no
// failure: the file stands in both folders.
ErrorCode MoveFileBetween(Application& application, const std::string& sourceFolder,
                          const std::string& destinationFolder, const std::string& name);

}  // namespace velkarix
