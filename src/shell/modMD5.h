// The digest by which a file is known whatever its name is.
#pragma once

#include <string>

#include "platform/Machine.h"
#include "shell/Progress.h"

namespace velkarix {

// The MD5 of the file's bytes as 32 lower-case hexadecimal digits. Empty when the file is missing,
// can't be read to its end, or the system's cryptographic service isn't there. Of a large file
// `progress` hears how far it has got.
std::string GetFileMD5(const Machine& machine, const std::string& path, Progress& progress);

}  // namespace velkarix
