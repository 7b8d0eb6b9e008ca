#include "shell/FilePaths.h"

#include <algorithm>
#include <iterator>

#include "base/Text.h"
#include "shell/DirectorySearch.h"
#include "shell/ShellOpen.h"

namespace velkarix {

namespace {

// Whether a path, with a backslash at its end, tells a drive and the name of each level below it.
// The names of the levels of any other would make the path of another file.
bool IsPlain(std::string_view path) {
    constexpr std::string_view Signs[] = {"/", "\\.\\", "\\..\\", "*", "?"};
    return path.substr(1, 2) == ":\\" && !NamesDevice(path) &&
           std::none_of(std::begin(Signs), std::end(Signs), [&](std::string_view sign) {
               return path.find(sign) != std::string_view::npos;
           });
}

bool IsDeviceName(std::string_view level) {
    constexpr std::string_view Devices[] = {"CON",    "PRN",    "AUX",    "NUL",
                                            "CLOCK$", "CONIN$", "CONOUT$"};
    constexpr std::string_view Numbered[] = {"COM", "LPT"};  // and a digit from 1
    level = level.substr(0, level.find_first_of(".:"));
    level = level.substr(0, level.find_last_not_of(' ') + 1);
    const auto is = [&](std::string_view name) { return EqualIgnoringCase(level, name); };
    if (std::any_of(std::begin(Devices), std::end(Devices), is)) return true;
    if (level.size() != 4 || level.back() < '1' || level.back() > '9') return false;
    level.remove_suffix(1);
    return std::any_of(std::begin(Numbered), std::end(Numbered), is);
}

}  // namespace

bool NamesDevice(std::string_view path) {
    if (path.starts_with("\\\\")) return false;  // shares, and names that are taken as they stand
    while (!path.empty()) {
        const std::size_t end = std::min(path.find_first_of("\\/"), path.size());
        if (IsDeviceName(path.substr(0, end))) return true;
        path.remove_prefix(std::min(end + 1, path.size()));
    }
    return false;
}

bool PathExists(FileSystem& files, const std::string& path) {
    if (NamesDevice(path)) return false;
    const std::optional<bool> exists = files.PathFileExistsA(path);
    if (exists) return *exists;
    // Systems without Internet Explorer 4 lack the shell's call.
    return files.GetFileAttributesA(path) != fileAttribute::Invalid;
}

std::string FileNameOf(std::string_view path) {
    const std::size_t last = path.rfind('\\');
    if (last == std::string_view::npos || last == 0) return std::string(path);
    return std::string(path.substr(last + 1));
}

std::string FolderOf(std::string_view path) {
    return std::string(path.substr(0, path.rfind('\\') + 1));
}

std::string CleanPath(const Machine& machine, const std::string& path) {
    std::string clean = path;
    if (clean.find('%') != std::string::npos) clean = ExpandEnvPath(machine.system, clean);
    if (clean.find('~') != std::string::npos) clean = GetLongPath(machine.files, clean);
    return clean;
}

std::string ExpandEnvPath(SystemFacts& system, const std::string& path) {
    constexpr std::size_t RoomForValues = 256;
    if (path.find('%') == std::string::npos) return path;
    const auto capacity = static_cast<std::uint32_t>(path.size() + RoomForValues);
    return TrimAtNull(system.ExpandEnvironmentStringsA(path, capacity).value_or(""));
}

std::string GetLongPath(FileSystem& files, const std::string& path) {
    constexpr std::size_t FirstLevel = 3;  // behind the drive: "C:\"
    const std::string levels = path + "\\";
    if (!IsPlain(levels)) return path;
    std::string longPath = path.substr(0, 2);
    for (std::size_t end = levels.find('\\', FirstLevel); end != std::string::npos;
         end = levels.find('\\', end + 1)) {
        const auto level = FindEntry(files, levels.substr(0, end), searchFor::Everything);
        if (!level) return path;
        longPath += "\\" + level->name;
    }
    return longPath;
}

std::string FindOnPath(const Machine& machine, const std::string& fileName) {
    std::string folders = machine.system.GetEnvironmentVariableA("path");
    if (folders.empty()) return {};
    folders += ';';
    std::size_t start = 0;
    for (std::size_t end = 0; (end = folders.find(';', start)) != std::string::npos;
         start = end + 1) {
        std::string candidate = folders.substr(start, end - start) + "\\" + fileName;
        if (PathExists(machine.files, candidate)) return candidate;
    }
    return {};
}

std::vector<std::string> ListFolderFiles(FileSystem& files, const std::string& folder,
                                         const std::string& pattern) {
    std::vector<std::string> names;
    DirectorySearch search(files, folder + "\\" + pattern, searchFor::HiddenFiles);
    while (const std::optional<FoundFile> found = search.Next()) {
        if (found->name != "." && found->name != "..") names.push_back(found->name);
    }
    return names;
}

std::optional<std::uint64_t> FileLength(FileSystem& files, const std::string& path) {
    const std::optional<FoundFile> found = FindEntry(files, path, searchFor::Everything);
    return found ? std::optional(found->size) : std::nullopt;
}

std::string SizeText(std::uint64_t length) {
    // In whole numbers, since half a tenth must be rounded up and not to the even digit.
    const std::uint64_t kilobytes = length / 1024;
    const std::uint64_t tenths = (length % 1024 * 20 + 1024) / 2048;
    return std::to_string(kilobytes + tenths / 10) + "." + std::to_string(tenths % 10);
}

std::string FileSizeText(FileSystem& files, const std::string& path) {
    const std::optional<std::uint64_t> length = FileLength(files, path);
    return length ? SizeText(*length) : std::string();
}

void ShowInExplorer(Shell& shell, WindowHandle mainWindow, const std::string& path) {
    shell.ShellExecuteA(mainWindow, "Open", "explorer.exe", "/select," + path, "", ShowNormal);
}

}  // namespace velkarix
