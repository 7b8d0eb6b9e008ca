// Shortcut files of the running system.
#pragma once

#include "platform/Shortcuts.h"

namespace velkarix {

class Win32Shortcuts : public Shortcuts {
  public:
    std::unique_ptr<ShortcutReader> MakeScriptShell() override;
    std::unique_ptr<ShortcutReader> MakeShellLink() override;
};

}  // namespace velkarix
