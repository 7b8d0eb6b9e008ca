// Shortcut files (.lnk), read by the two ways that systems have: the automation object
// "WScript.Shell", and the shell's own link object. Each way is one reader.
#pragma once

#include <memory>
#include <string>

namespace velkarix {

// What a shortcut says of itself. `targetPath` is empty where the target is no file (a control
// panel's page); its variables may stand in it as %NAME%. `iconLocation` is a file, a comma and an
// index; the file is empty where the target's own icon serves.
struct Shortcut {
    std::string targetPath;
    std::string arguments;
    std::string iconLocation;

    friend bool operator==(const Shortcut&, const Shortcut&) = default;
};

class ShortcutReader {
  public:
    virtual ~ShortcutReader() = default;
    // Reads the properties of the file at `path`, without looking for its target. False, with
    // `shortcut` as it was, when the file isn't there or can't be opened as a shortcut, or the
    // reader can't tell one of the properties. The automation object may take a file that it
    // can't load for an empty shortcut.
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
