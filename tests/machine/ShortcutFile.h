// The bytes of shortcut files (.lnk), as the shell writes them when it has nothing but a path, the
// arguments and an icon to keep.
#pragma once

#include <optional>

#include "base/Bytes.h"
#include "platform/Shortcuts.h"

namespace velkarix {

// `iconLocation` needs no comma when it is empty.
Bytes MakeShortcutFile(const Shortcut& shortcut);
// Reads such a file; nothing when a part is cut off or it is another kind of file.
std::optional<Shortcut> ReadShortcutFile(const Bytes& file);

}  // namespace velkarix
