#include "tests/machine/MemoryShortcuts.h"

#include <utility>

#include "tests/machine/ShortcutFile.h"

namespace velkarix {
namespace {

class MemoryReader : public ShortcutReader {
  public:
    MemoryReader(CallJournal& journal, MemoryDisk& disk, const char* call, bool loads)
        : journal_(journal), disk_(disk), call_(call), loads_(loads) {}

    bool Read(const std::string& path, Shortcut& shortcut) override {
        const bool fails = journal_.Enter(call_, path) != error::Success;
        ErrorCode error = error::Success;
        const auto entry = disk_.Readable(path, error);
        if (fails || !entry) {
            return false;
        }
        std::optional<Shortcut> read =
            loads_ ? ReadShortcutFile(entry->content) : Shortcut{"", "", ",0"};
        if (!read) {
            return false;
        }
        shortcut = *std::move(read);
        return true;
    }

  private:
    CallJournal& journal_;
    MemoryDisk& disk_;
    const char* call_;
    bool loads_;
};

}  // namespace

std::unique_ptr<ShortcutReader> MemoryShortcuts::MakeScriptShell() {
    if (journal_.Enter("MakeScriptShell") || !hasScriptShell_) {
        return nullptr;
    }
    return std::make_unique<MemoryReader>(journal_, disk_, "CreateShortcut", scriptShellLoads_);
}

std::unique_ptr<ShortcutReader> MemoryShortcuts::MakeShellLink() {
    if (journal_.Enter("MakeShellLink") || !hasShellLink_) {
        return nullptr;
    }
    return std::make_unique<MemoryReader>(journal_, disk_, "Load", true);
}

}  // namespace velkarix
