#include "shell/ShortcutFacts.h"

#include <cstdint>

#include "shell/FilePaths.h"
#include "shell/ShortcutCheck.h"
#include "shell/TextFile.h"

namespace velkarix {
namespace {

constexpr std::uint64_t MostBytes = 1024 * 1024;

std::optional<Shortcut> ReadBy(const std::unique_ptr<ShortcutReader>& reader,
                               const std::string& path) {
    Shortcut shortcut;
    if (!reader || !reader->Read(path, shortcut)) return std::nullopt;
    return shortcut;
}

}  // namespace

ShortcutSource::ShortcutSource(Shortcuts& shortcuts, FileSystem& files)
    : files_(files),
      scriptShell_(shortcuts.MakeScriptShell()),
      shellLink_(shortcuts.MakeShellLink()) {}

bool ShortcutSource::Available() const {
    return scriptShell_ != nullptr || shellLink_ != nullptr;
}

std::optional<Shortcut> ShortcutSource::Open(const std::string& path) {
    if (!MayBeRead(path)) return std::nullopt;
    std::optional<Shortcut> told = ReadBy(scriptShell_, path);
    if (told && !told->targetPath.empty()) return told;
    // No target may also mean that the automation object hasn't loaded the file.
    std::optional<Shortcut> linked = ReadBy(shellLink_, path);
    return linked ? linked : told;
}

bool ShortcutSource::MayBeRead(const std::string& path) const {
    if (FileLength(files_, path).value_or(MostBytes + 1) > MostBytes) return false;
    const std::optional<std::string> file = ReadTextFile(files_, path);
    return file && IsWholeShortcut(*file);
}

}  // namespace velkarix
