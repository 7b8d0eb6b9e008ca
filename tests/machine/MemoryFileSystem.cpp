#include "tests/machine/MemoryFileSystem.h"

#include <algorithm>
#include <string>
#include <utility>

#include "tests/machine/Wildcard.h"

namespace velkarix {
namespace {

FoundFile Describe(const MemoryEntry& entry, const std::string& name) {
    return {entry.attributes, entry.creationTime, entry.content.size(), name};
}

// The system overlooks blanks and dots at the end of a name; of a pattern they are a part.
std::string WithoutTail(std::string name) {
    const std::size_t end = name.find_last_not_of(". ") + 1;
    if (end != 0 && name.find_first_of("*?") == std::string::npos) {
        name.erase(end);
    }
    return name;
}

// The folder's entries that fit, as a directory search lists them.
std::vector<FoundFile> Matches(const MemoryEntry& folder, bool isRoot, const std::string& pattern) {
    std::vector<FoundFile> found;
    for (const char* dots : {".", ".."}) {
        if (!isRoot && FitsPattern(dots, pattern)) {
            found.push_back(Describe(folder, dots));
        }
    }
    for (std::size_t index = 0; const auto entry = folder.children.At(index); ++index) {
        if (FitsPattern(entry->name, pattern) ||
            (!entry->shortName.empty() && FitsPattern(entry->shortName, pattern))) {
            found.push_back(Describe(*entry, entry->name));
        }
    }
    return found;
}

}  // namespace

SearchHandle MemoryFileSystem::FindFirstFileA(const std::string& pattern, FoundFile& found) {
    if (journal_.Enter("FindFirstFileA", pattern)) {
        return 0;
    }
    const std::size_t lastLevel = pattern.find_last_of("\\/") + 1;
    const std::string folderPath = lastLevel == 0 ? "." : pattern.substr(0, lastLevel);
    const auto folder = disk_.Find(folderPath);
    if (!folder) {
        return 0;
    }
    const bool isRoot = folder->name.ends_with(':');
    Search search{Matches(*folder, isRoot, WithoutTail(pattern.substr(lastLevel))), 1};
    if (search.found.empty()) {
        return 0;
    }
    found = search.found.front();
    searches_[++nextHandle_] = std::move(search);
    return nextHandle_;
}

bool MemoryFileSystem::FindNextFileA(SearchHandle search, FoundFile& found) {
    if (journal_.Enter("FindNextFileA")) {
        return false;
    }
    const auto open = searches_.find(search);
    if (open == searches_.end() || open->second.next == open->second.found.size()) {
        return false;
    }
    found = open->second.found[open->second.next++];
    return true;
}

bool MemoryFileSystem::FindClose(SearchHandle search) {
    return !journal_.Enter("FindClose") && searches_.erase(search) != 0;
}

std::optional<bool> MemoryFileSystem::PathFileExistsA(const std::string& path) {
    if (journal_.Enter("PathFileExistsA", path)) {
        return false;
    }
    if (!hasPathFileExists_) {
        return std::nullopt;
    }
    return disk_.Exists(path) || MemoryDisk::IsDevice(path);
}

std::uint32_t MemoryFileSystem::GetFileAttributesA(const std::string& path) {
    const bool fails = journal_.Enter("GetFileAttributesA", path) != error::Success;
    const auto entry = disk_.Find(path);
    if (!fails && !entry && MemoryDisk::IsDevice(path)) {
        return fileAttribute::Archive;
    }
    return fails || !entry ? fileAttribute::Invalid : entry->attributes;
}

ErrorCode MemoryFileSystem::CreateDirectoryA(const std::string& path) {
    if (const ErrorCode failure = journal_.Enter("CreateDirectoryA", path)) {
        return failure;
    }
    if (disk_.Exists(path)) {
        return error::AlreadyExists;
    }
    std::string name;
    if (!disk_.FindFolderOf(path, name)) {
        return error::PathNotFound;
    }
    disk_.AddFolder(path);
    return error::Success;
}

bool MemoryFileSystem::IsBeingWritten(const MemoryEntry& entry) const {
    return std::any_of(files_.begin(), files_.end(), [&](const auto& open) {
        return open.second.entry.get() == &entry && open.second.use != FileUse::Read;
    });
}

ErrorCode MemoryFileSystem::CopyFileA(const std::string& from, const std::string& to) {
    if (const ErrorCode failure = journal_.Enter("CopyFileA", from + ", " + to)) {
        return failure;
    }
    ErrorCode failure = error::Success;
    const auto source = disk_.Readable(from, failure);
    const auto target = source ? disk_.Writable(to, failure) : nullptr;
    if (!target) {
        return failure;
    }
    if (source == target) {
        return error::SharingViolation;
    }
    // A disk that fills up keeps the part that it took.
    const std::size_t count = disk_.TakeSpace(source->content.size());
    target->content.assign(source->content.begin(),
                           source->content.begin() + static_cast<std::ptrdiff_t>(count));
    target->attributes = source->attributes;
    return count == source->content.size() ? error::Success : error::DiskFull;
}

ErrorCode MemoryFileSystem::DeleteFileA(const std::string& path) {
    if (const ErrorCode failure = journal_.Enter("DeleteFileA", path)) {
        return failure;
    }
    ErrorCode failure = error::Success;
    // What can't be written can't be deleted either, for the same reasons.
    if (!disk_.Readable(path, failure) || !disk_.Writable(path, failure)) {
        return failure;
    }
    disk_.Remove(path);
    return error::Success;
}

std::string MemoryFileSystem::GetShortPathNameA(const std::string& path, std::uint32_t capacity) {
    const bool fails = journal_.Enter("GetShortPathNameA", path) != error::Success;
    const std::string shortPath = fails ? std::string() : disk_.ShortPathOf(path);
    return shortPath.size() < capacity ? shortPath : std::string();
}

bool MemoryFileSystem::MoveFileExA(const std::string& path) {
    if (journal_.Enter("MoveFileExA", path) || family_ != Family::WindowsNt || path.empty()) {
        return false;
    }
    deletedAtNextStart_.push_back(path);
    return true;
}

ErrorCode MemoryFileSystem::CreateFileA(const std::string& path, FileUse use, FileHandle& file) {
    if (const ErrorCode failure = journal_.Enter("CreateFileA", path, use != FileUse::Read)) {
        return failure;
    }
    if (use != FileUse::Read) {
        openedForWriting_.push_back(path);
    }
    OpenFile open{nullptr, use, 0};
    ErrorCode failure = error::Success;
    open.entry =
        use == FileUse::Read ? disk_.Readable(path, failure) : disk_.Writable(path, failure);
    if (!open.entry) {
        return failure;
    }
    if (use != FileUse::Read && IsBeingWritten(*open.entry)) {
        return error::SharingViolation;
    }
    if (use == FileUse::Replace) {
        disk_.GiveBack(open.entry->content.size());
        open.entry->content.clear();
    } else if (use == FileUse::Append) {
        open.position = open.entry->content.size();
    }
    file = ++nextHandle_;
    files_[file] = std::move(open);
    return error::Success;
}

std::optional<std::uint64_t> MemoryFileSystem::GetFileSize(FileHandle file) {
    const bool fails = journal_.Enter("GetFileSize") != error::Success;
    const auto open = files_.find(file);
    if (fails || open == files_.end()) {
        return std::nullopt;
    }
    return open->second.entry->content.size();
}

ErrorCode MemoryFileSystem::ReadFile(FileHandle file, std::span<std::uint8_t> buffer,
                                     std::uint32_t& read) {
    if (const ErrorCode failure = journal_.Enter("ReadFile", std::to_string(buffer.size()))) {
        return failure;
    }
    const auto open = files_.find(file);
    if (open == files_.end()) {
        return error::InvalidHandle;
    }
    if (open->second.use != FileUse::Read) {
        return error::AccessDenied;
    }
    const Bytes& content = open->second.entry->content;
    const std::size_t from = std::min(open->second.position, content.size());
    const std::size_t count = std::min(buffer.size(), content.size() - from);
    std::copy_n(content.begin() + static_cast<std::ptrdiff_t>(from), count, buffer.begin());
    open->second.position = from + count;
    read = static_cast<std::uint32_t>(count);
    return error::Success;
}

ErrorCode MemoryFileSystem::WriteFile(FileHandle file, std::span<const std::uint8_t> data,
                                      std::uint32_t& written) {
    if (const ErrorCode failure = journal_.Enter("WriteFile", std::to_string(data.size()))) {
        return failure;
    }
    const auto open = files_.find(file);
    if (open == files_.end()) {
        return error::InvalidHandle;
    }
    if (open->second.use == FileUse::Read) {
        return error::AccessDenied;
    }
    const std::size_t count = disk_.TakeSpace(data.size());
    if (count == 0 && !data.empty()) {
        return error::HandleDiskFull;
    }
    Bytes& content = open->second.entry->content;
    content.resize(std::max(content.size(), open->second.position + count));
    std::copy_n(data.begin(), count,
                content.begin() + static_cast<std::ptrdiff_t>(open->second.position));
    open->second.position += count;
    written = static_cast<std::uint32_t>(count);
    return error::Success;
}

ErrorCode MemoryFileSystem::FlushFileBuffers(FileHandle file) {
    if (const ErrorCode failure = journal_.Enter("FlushFileBuffers")) {
        return failure;
    }
    const auto open = files_.find(file);
    if (open == files_.end()) {
        return error::InvalidHandle;
    }
    return open->second.use == FileUse::Read ? error::AccessDenied : error::Success;
}

bool MemoryFileSystem::CloseFile(FileHandle file) {
    return !journal_.Enter("CloseFile") && files_.erase(file) != 0;
}

}  // namespace velkarix
