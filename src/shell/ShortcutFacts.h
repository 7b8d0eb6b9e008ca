// What shortcut files say, by whichever way of reading them the system has.
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "platform/FileSystem.h"
#include "platform/Shortcuts.h"

namespace velkarix {

class ShortcutSource {
  public:
    // Makes the automation object, and the link object for what the other can't read. They live
    // as long as this one.
    ShortcutSource(Shortcuts& shortcuts, FileSystem& files);

    // False where the system has neither, so that no shortcut can be read at all.
    bool Available() const;
    // What the existing file at `path` says; nothing when it can't be read as a shortcut. The
    // target is empty when it is no file. A file that is broken, or too large for a shortcut, is
    // kept from the system's objects.
    std::optional<Shortcut> Open(const std::string& path);

  private:
    bool MayBeRead(const std::string& path) const;

    FileSystem& files_;
    std::unique_ptr<ShortcutReader> scriptShell_;
    std::unique_ptr<ShortcutReader> shellLink_;
};

}  // namespace velkarix
