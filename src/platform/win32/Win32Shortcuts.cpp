#include "platform/win32/Win32Shortcuts.h"

#include "platform/win32/ScriptShellReader.h"
#include "platform/win32/ShellLinkReader.h"

namespace velkarix {

std::unique_ptr<ShortcutReader> Win32Shortcuts::MakeScriptShell() {
    return MakeScriptShellReader();
}

std::unique_ptr<ShortcutReader> Win32Shortcuts::MakeShellLink() {
    return MakeShellLinkReader();
}

}  // namespace velkarix
