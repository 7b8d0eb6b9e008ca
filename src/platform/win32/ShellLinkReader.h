// Shortcut files read by the shell's own link object.
#pragma once

#include <memory>

#include "platform/Shortcuts.h"

namespace velkarix {

// Null where the shell has no such object (before Windows 95 and NT 4.0).
std::unique_ptr<ShortcutReader> MakeShellLinkReader();

}  // namespace velkarix
