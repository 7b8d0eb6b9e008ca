// Shortcut files as the running system itself writes them.
#pragma once

#include <string>

#include "platform/Shortcuts.h"

namespace velkarix {

// Saves a shortcut by the shell's link object. What is empty isn't set; `iconLocation` is a file, a
// comma and an index.
void SaveShortcut(const std::string& path, const Shortcut& shortcut);

}  // namespace velkarix
