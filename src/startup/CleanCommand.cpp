#include "startup/CleanCommand.h"

#include <algorithm>

#include "base/Text.h"
#include "shell/FilePaths.h"

namespace velkarix {

namespace {

// Where the text up to the extension ends; npos when it has none.
std::size_t EndOfProgram(const std::string& text) {
    const std::string lower = ToLower(text);
    for (const std::string_view extension : {".exe", ".dll"}) {
        const std::size_t found = lower.find(extension);
        if (found != std::string::npos) return found + extension.size();
    }
    return std::string::npos;
}

}  // namespace

std::string CleanCommand(const Machine& machine, const std::string& command) {
    std::string text = command;
    std::erase(text, '"');
    const std::size_t end = EndOfProgram(text);
    if (end == std::string::npos) return text;
    const std::size_t colon = text.find(':');
    if (colon == std::string::npos || colon == 0) {
        const std::string found = FindOnPath(machine, text.substr(0, end));
        return found.empty() ? text : found;
    }
    const std::size_t drive = colon - 1;
    return end > drive ? text.substr(drive, end - drive) : std::string();
}

}  // namespace velkarix
