// Whether the definition lists know a class or a file as suspicious.
#pragma once

#include <string_view>

#include "shell/Application.h"

namespace velkarix {

// The text as it stands, anywhere in the list: the caller lowers a class identifier first, since
// the list holds them in lower case.
bool IsSuspiciousClsid(const Application& application, std::string_view text);
// A file's digest, as GetFileMD5 gives it, among those of suspicious programs.
bool IsSuspiciousFileHash(const Application& application, std::string_view text);

}  // namespace velkarix
