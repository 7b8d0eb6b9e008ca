#include "tests/machine/MemoryDisk.h"

#include <algorithm>
#include <utility>

namespace velkarix {
namespace {

constexpr std::size_t longestPath = 259;  // bytes, without the NUL
constexpr std::string_view literal = "\\\\?\\";

bool IsSeparator(char character) {
    return character == '\\' || character == '/';
}

// The part of a path that names its drive or share: "C:" or "\\server\share"; empty for others.
std::string DriveOf(const std::string& path) {
    if (path.size() >= 2 && path[1] == ':') {
        return path.substr(0, 2);
    }
    if (path.size() < 2 || !IsSeparator(path[0]) || !IsSeparator(path[1])) {
        return {};
    }
    const std::size_t share = path.find('\\', 2);
    return share == std::string::npos ? std::string() : path.substr(0, path.find('\\', share + 1));
}

// The system overlooks blanks and dots at the end of a name.
std::string WithoutTail(std::string level) {
    level.erase(level.find_last_not_of(". ") + 1);
    return level;
}

void AppendLevels(const std::string& path, std::vector<std::string>& levels) {
    for (std::size_t start = 0; start < path.size();) {
        const std::size_t end = std::min(path.find_first_of("\\/", start), path.size());
        const std::string level = path.substr(start, end - start);
        if (level == "..") {
            if (!levels.empty()) {
                levels.pop_back();
            }
        } else if (std::string name = WithoutTail(level); !name.empty()) {
            levels.push_back(std::move(name));
        }
        start = end + 1;
    }
}

std::shared_ptr<MemoryEntry> Child(const MemoryEntry& folder, const std::string& name) {
    if (auto found = folder.children.Find(name)) {
        return found;
    }
    for (std::size_t index = 0; auto child = folder.children.At(index); ++index) {
        if (!child->shortName.empty() && SameName(child->shortName, name)) {
            return child;
        }
    }
    return nullptr;
}

}  // namespace

bool MemoryDisk::IsDevice(const std::string& path) {
    if (path.starts_with("\\\\")) {
        return false;
    }
    std::string name = path.substr(path.find_last_of("\\/:") + 1);
    name.erase(std::min(name.find('.'), name.size()));
    name.erase(name.find_last_not_of(' ') + 1);
    const auto is = [&](const char* device) { return SameName(name, device); };
    return is("CON") || is("PRN") || is("AUX") || is("NUL") ||
           (name.size() == 4 && name[3] >= '1' && name[3] <= '9' &&
            (SameName(name.substr(0, 3), "COM") || SameName(name.substr(0, 3), "LPT")));
}

MemoryDisk::MemoryDisk() : currentFolder_("C:\\Velkarix") {
    AddFolder(currentFolder_);
    AddFolder("C:\\WINDOWS");
}

std::optional<MemoryDisk::Parts> MemoryDisk::Split(const std::string& path) const {
    // Taken as it stands, at any length.
    const bool isLiteral =
        path.starts_with(literal) && path.find(":\\", literal.size()) == literal.size() + 1;
    if (isLiteral && path.find_first_of("<>|\"*?/", literal.size()) == std::string::npos) {
        Parts parts{path.substr(literal.size(), 2), {}};
        AppendLevels(path.substr(literal.size() + 2), parts.levels);
        return parts;
    }
    if (path.empty() || path.size() > longestPath || IsDevice(path) ||
        path.find_first_of("<>|\"*?") != std::string::npos) {
        return std::nullopt;
    }
    Parts parts{DriveOf(path), {}};
    std::string below = path.substr(parts.drive.size());
    if (parts.drive.empty()) {
        parts.drive = DriveOf(currentFolder_);
        if (!IsSeparator(path[0])) {
            AppendLevels(currentFolder_.substr(parts.drive.size()), parts.levels);
        }
    }
    AppendLevels(below, parts.levels);
    return parts;
}

MemoryEntry& MemoryDisk::Add(const std::string& path, std::uint32_t attributes) {
    const Parts parts = Split(path).value();
    std::shared_ptr<MemoryEntry> entry = drives_.Find(parts.drive);
    if (!entry) {
        entry = drives_.Add(std::make_shared<MemoryEntry>(parts.drive, fileAttribute::Directory));
    }
    for (std::size_t level = 0; level < parts.levels.size(); ++level) {
        std::shared_ptr<MemoryEntry> next = Child(*entry, parts.levels[level]);
        if (!next) {
            const bool isLast = level + 1 == parts.levels.size();
            next = entry->children.Add(std::make_shared<MemoryEntry>(
                parts.levels[level], isLast ? attributes : fileAttribute::Directory));
        }
        entry = next;
    }
    return *entry;
}

MemoryEntry& MemoryDisk::AddFile(const std::string& path) {
    return Add(path, fileAttribute::Archive);
}

MemoryEntry& MemoryDisk::AddFolder(const std::string& path) {
    return Add(path, fileAttribute::Directory);
}

bool MemoryDisk::Remove(const std::string& path) {
    std::string name;
    const auto folder = FindFolderOf(path, name);
    const auto entry = Find(path);
    return folder && entry && folder->children.Remove(entry->name);
}

std::optional<std::string> MemoryDisk::ContentOf(const std::string& path) const {
    const auto entry = Find(path);
    if (!entry || entry->IsFolder()) {
        return std::nullopt;
    }
    return std::string(entry->content.begin(), entry->content.end());
}

std::shared_ptr<MemoryEntry> MemoryDisk::Walk(const Parts& parts) const {
    std::shared_ptr<MemoryEntry> entry = drives_.Find(parts.drive);
    for (const std::string& level : parts.levels) {
        if (!entry) {
            return nullptr;
        }
        entry = Child(*entry, level);
    }
    return entry;
}

std::shared_ptr<MemoryEntry> MemoryDisk::Find(const std::string& path) const {
    const std::optional<Parts> parts = Split(path);
    const auto entry = parts ? Walk(*parts) : nullptr;
    const bool namesAFolder = !path.empty() && IsSeparator(path.back());
    return entry && namesAFolder && !entry->IsFolder() ? nullptr : entry;
}

std::string MemoryDisk::ShortPathOf(const std::string& path) const {
    const std::optional<Parts> parts = Split(path);
    if (!parts || !Walk(*parts)) {
        return {};
    }
    std::string shortPath = parts->drive;
    std::shared_ptr<MemoryEntry> entry = drives_.Find(parts->drive);
    for (const std::string& level : parts->levels) {
        entry = Child(*entry, level);
        shortPath += "\\" + (entry->shortName.empty() ? entry->name : entry->shortName);
    }
    return parts->levels.empty() ? shortPath + "\\" : shortPath;
}

std::shared_ptr<MemoryEntry> MemoryDisk::FindFolderOf(const std::string& path,
                                                      std::string& lastName) const {
    std::optional<Parts> parts = Split(path);
    if (!parts || parts->levels.empty()) {
        return nullptr;
    }
    lastName = parts->levels.back();
    parts->levels.pop_back();
    const auto folder = Walk(*parts);
    return folder && folder->IsFolder() ? folder : nullptr;
}

std::shared_ptr<MemoryEntry> MemoryDisk::Readable(const std::string& path, ErrorCode& error) const {
    std::string name;
    const auto entry = Find(path);
    if (!entry) {
        const bool hasFolder = IsDevice(path) || FindFolderOf(path, name);
        error = hasFolder ? error::FileNotFound : error::PathNotFound;
        return nullptr;
    }
    if (entry->IsFolder() || entry->unreadable) {
        error = entry->IsFolder() ? error::AccessDenied : error::SharingViolation;
        return nullptr;
    }
    return entry;
}

std::shared_ptr<MemoryEntry> MemoryDisk::Writable(const std::string& path, ErrorCode& error) {
    std::string name;
    const auto folder = FindFolderOf(path, name);
    if (!folder) {
        error = error::PathNotFound;
        return nullptr;
    }
    std::shared_ptr<MemoryEntry> entry = Child(*folder, name);
    if (entry &&
        (entry->IsFolder() || entry->inUse || (entry->attributes & fileAttribute::ReadOnly) != 0)) {
        error = error::AccessDenied;
        return nullptr;
    }
    if (entry && entry->unreadable) {
        error = error::SharingViolation;
        return nullptr;
    }
    error = error::Success;
    return entry
               ? entry
               : folder->children.Add(std::make_shared<MemoryEntry>(name, fileAttribute::Archive));
}

std::size_t MemoryDisk::TakeSpace(std::size_t count) {
    if (!freeBytes_) {
        return count;
    }
    const std::size_t taken = static_cast<std::size_t>(std::min<std::uint64_t>(count, *freeBytes_));
    *freeBytes_ -= taken;
    return taken;
}

void MemoryDisk::GiveBack(std::size_t count) {
    if (freeBytes_) {
        *freeBytes_ += count;
    }
}

}  // namespace velkarix
