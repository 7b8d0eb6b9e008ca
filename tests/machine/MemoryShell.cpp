#include "tests/machine/MemoryShell.h"

#include <algorithm>
#include <utility>

#include "tests/machine/CaseFold.h"

namespace velkarix {
namespace {

constexpr std::uint32_t started = 33;  // any number above 32
constexpr const char* searchedFolders[] = {"C:\\Velkarix\\", "C:\\WINDOWS\\SYSTEM32\\",
                                           "C:\\WINDOWS\\"};

bool IsWebAddress(const std::string& text) {
    return text.find("://") != std::string::npos || FoldCase(text).starts_with("MAILTO:");
}

// What the program of a command line may be: what stands in quotes, or each part up to a blank.
std::vector<std::string> ProgramsOf(const std::string& commandLine) {
    if (commandLine.starts_with('"')) {
        return {commandLine.substr(1, commandLine.find('"', 1) - 1)};
    }
    std::vector<std::string> programs;
    std::size_t end = 0;
    do {
        end = commandLine.find(' ', end + 1);
        programs.push_back(commandLine.substr(0, end));
    } while (end != std::string::npos);
    return programs;
}

}  // namespace

std::uint32_t MemoryShell::Start(const std::string& file) const {
    const bool hasFolder = file.find_first_of("\\/") != std::string::npos;
    for (const char* ending : {"", ".exe"}) {
        if (hasFolder && disk_.Exists(file + ending)) {
            return started;
        }
        for (const char* folder : searchedFolders) {
            if (!hasFolder && !file.empty() && disk_.Exists(folder + file + ending)) {
                return started;
            }
        }
    }
    std::string name;
    return hasFolder && !disk_.FindFolderOf(file, name) ? error::PathNotFound : error::FileNotFound;
}

std::uint32_t MemoryShell::ShellExecuteA(WindowHandle parent, const std::string& verb,
                                         const std::string& file, const std::string& parameters,
                                         const std::string& folder, int showCommand) {
    opened_.push_back({parent, verb, file, parameters, folder, showCommand});
    if (const ErrorCode failure =
            journal_.Enter("ShellExecuteA", verb + ", " + file + ", " + parameters)) {
        return failure;
    }
    return IsWebAddress(file) ? started : Start(file);
}

std::uint32_t MemoryShell::WinExec(const std::string& commandLine, int showCommand) {
    launched_.push_back({commandLine, showCommand});
    if (const ErrorCode failure = journal_.Enter("WinExec", commandLine)) {
        return failure;
    }
    const std::vector<std::string> programs = ProgramsOf(commandLine);
    const auto found = std::find_if(programs.begin(), programs.end(), [&](const std::string& name) {
        return Start(name) == started;
    });
    return Start(found == programs.end() ? programs.front() : *found);
}

ExtractedIcons MemoryShell::ExtractIconExA(const std::string& path, int index) {
    const bool fails =
        journal_.Enter("ExtractIconExA", path + ", " + std::to_string(index)) != error::Success;
    const auto entry = disk_.Find(path);
    if (fails || !entry || !entry->icons.contains(index)) {
        return {};
    }
    const auto& [large, small] = entry->icons[index];
    return {2, OpenIcon(large), OpenIcon(small)};
}

IconHandle MemoryShell::OpenIcon(const Picture& picture) {
    icons_[++nextIcon_] = picture;
    return nextIcon_;
}

std::optional<Picture> MemoryShell::DrawIconEx(IconHandle icon) {
    const bool fails = journal_.Enter("DrawIconEx") != error::Success;
    const auto open = icons_.find(icon);
    return fails || open == icons_.end() ? std::nullopt : std::optional(open->second);
}

bool MemoryShell::DestroyIcon(IconHandle icon) {
    return !journal_.Enter("DestroyIcon") && icons_.erase(icon) != 0;
}

}  // namespace velkarix
