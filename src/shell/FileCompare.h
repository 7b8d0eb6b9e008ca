// Whether two files hold the same bytes.
#pragma once

#include <string>

#include "platform/FileSystem.h"

namespace velkarix {

// False also when one of them can't be read to its end.
bool SameContent(FileSystem& files, const std::string& left, const std::string& right);

}  // namespace velkarix
