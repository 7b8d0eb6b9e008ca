// What shortcut files say, by whichever way of reading them the system has.
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "platform/Shortcuts.h"

namespace velkarix {

class ShortcutSource {
  public:
    // Makes the automation object, and the link object for what the other can't read. They live
    // as long as this one.
    explicit ShortcutSource(Shortcuts& shortcuts);

    // False where the system has neither, so that no shortcut can be read at all.
    bool Available() const;
    // What the existing file at `path` says; nothing when it can't be read as a shortcut. The
    // target is empty when it is no file.
    std::optional<Shortcut> Open(const std::string& path);

  private:
    std::unique_ptr<ShortcutReader> scriptShell_;
    std::unique_ptr<ShortcutReader> shellLink_;
};

}  // namespace velkarix
