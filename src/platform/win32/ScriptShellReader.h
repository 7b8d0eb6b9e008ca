// Shortcut files read by the automation object "WScript.Shell".
#pragma once

#include <memory>

#include "platform/Shortcuts.h"

namespace velkarix {

// Null where the object isn't installed.
std::unique_ptr<ShortcutReader> MakeScriptShellReader();

}  // namespace velkarix
