#include "shell/ShortcutFacts.h"

namespace velkarix {
namespace {

std::optional<Shortcut> ReadBy(const std::unique_ptr<ShortcutReader>& reader,
                               const std::string& path) {
    Shortcut shortcut;
    if (!reader || !reader->Read(path, shortcut)) return std::nullopt;
    return shortcut;
}

}  // namespace

ShortcutSource::ShortcutSource(Shortcuts& shortcuts)
    : scriptShell_(shortcuts.MakeScriptShell()), shellLink_(shortcuts.MakeShellLink()) {}

bool ShortcutSource::Available() const {
    return scriptShell_ != nullptr || shellLink_ != nullptr;
}

std::optional<Shortcut> ShortcutSource::Open(const std::string& path) {
    std::optional<Shortcut> told = ReadBy(scriptShell_, path);
    if (told && !told->targetPath.empty()) return told;
    // No target may also mean that the automation object hasn't loaded the file.
    std::optional<Shortcut> linked = ReadBy(shellLink_, path);
    return linked ? linked : told;
}

}  // namespace velkarix
