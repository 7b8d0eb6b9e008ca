// Shortcut files (.lnk), read by the two ways that systems have: the automation object
// "WScript.Shell", and the shell's own link object. Each way is one reader.
#pragma once

#include <memory>
#include <string>

namespace velkarix {

// What a shortcut says of itself. `iconLocation` is a file, a comma and an index; the file is empty
// where the target's own icon serves.
struct Shortcut {
    std::string targetPath;
    std::string arguments;
    std::string iconLocation;
};

class ShortcutReader {
  public:
    virtual ~ShortcutReader() = default;
    // Opens the existing file at `path` and reads its properties. False when the file can't be
    // opened as a shortcut, or the reader can't tell one of the properties.
    virtual bool Read(const std::string& path, Shortcut& shortcut) = 0;
};

class Shortcuts {
  public:
    virtual ~Shortcuts() = default;
    // The automation object "WScript.Shell", whose CreateShortcut opens a file; null where the
    // system can't make one.
    virtual std::unique_ptr<ShortcutReader> MakeScriptShell() = 0;
    // The shell's link object; null where the system can't make one.
    virtual std::unique_ptr<ShortcutReader> MakeShellLink() = 0;
};

}  // namespace velkarix
