// Opens a document or an address with what the system has registered for it.
#pragma once

#include <string>

#include "platform/Shell.h"

namespace velkarix {

inline constexpr int ShowNormal = 1;  // SW_SHOWNORMAL

// `path` is a file's path or an address, handed over as it stands. A failure is silent.
void ShellOpen(Shell& shell, const std::string& path);

}  // namespace velkarix
