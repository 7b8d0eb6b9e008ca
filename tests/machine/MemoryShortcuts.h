// Shortcut files on the disk in memory, and who can read them. A file is a shortcut by its bytes
// (MemoryEntry::Shortcut makes one), so its copies are shortcuts too.
#pragma once

#include "platform/Shortcuts.h"
#include "tests/machine/CallJournal.h"
#include "tests/machine/MemoryDisk.h"

namespace velkarix {

class MemoryShortcuts : public Shortcuts {
  public:
    MemoryShortcuts(CallJournal& journal, MemoryDisk& disk) : journal_(journal), disk_(disk) {}

    // Whether the system can make the one and the other.
    void SetHasScriptShell(bool has) { hasScriptShell_ = has; }
    void SetHasShellLink(bool has) { hasShellLink_ = has; }
    // Whether the automation object loads files; one that doesn't gives an empty shortcut for each.
    void SetScriptShellLoads(bool loads) { scriptShellLoads_ = loads; }

    // A reader must not outlive this object. The automation object's reading is journalled as
    // "CreateShortcut" and the link object's as "Load", and both can be made to fail.
    std::unique_ptr<ShortcutReader> MakeScriptShell() override;
    std::unique_ptr<ShortcutReader> MakeShellLink() override;

  private:
    CallJournal& journal_;
    MemoryDisk& disk_;
    bool hasScriptShell_ = true;
    bool hasShellLink_ = true;
    bool scriptShellLoads_ = true;
};

}  // namespace velkarix
