// The file calls over the disk in memory.
#pragma once

#include <cstddef>
#include <map>
#include <memory>
#include <vector>

#include "platform/FileSystem.h"
#include "tests/machine/CallJournal.h"
#include "tests/machine/MemoryDisk.h"
#include "tests/machine/NamedSystem.h"

namespace velkarix {

class MemoryFileSystem : public FileSystem {
  public:
    MemoryFileSystem(CallJournal& journal, MemoryDisk& disk) : journal_(journal), disk_(disk) {}

    // Whether the system has PathFileExistsA; it does at first.
    void SetHasPathFileExists(bool there) { hasPathFileExists_ = there; }
    // Files that weren't closed, and searches that weren't.
    std::size_t OpenFileCount() const { return files_.size(); }
    // As the system does when the process that has opened them ends.
    void CloseAllFiles() { files_.clear(); }
    std::size_t OpenSearchCount() const { return searches_.size(); }

    // The path of every file that was opened to be written, in the order of the openings.
    const std::vector<std::string>& OpenedForWriting() const { return openedForWriting_; }
    // What is to be deleted at the next start, in the order that it was asked for.
    const std::vector<std::string>& DeletedAtNextStart() const { return deletedAtNextStart_; }
    // Whether the system can delete at its next start, as the NT family does; it can at first.
    void SetFamily(Family family) { family_ = family; }

    // ---- FileSystem
    SearchHandle FindFirstFileA(const std::string& pattern, FoundFile& found) override;
    bool FindNextFileA(SearchHandle search, FoundFile& found) override;
    bool FindClose(SearchHandle search) override;
    std::optional<bool> PathFileExistsA(const std::string& path) override;
    std::uint32_t GetFileAttributesA(const std::string& path) override;
    ErrorCode CreateDirectoryA(const std::string& path) override;
    ErrorCode CopyFileA(const std::string& from, const std::string& to) override;
    ErrorCode DeleteFileA(const std::string& path) override;
    std::string GetShortPathNameA(const std::string& path, std::uint32_t capacity) override;
    bool MoveFileExA(const std::string& path) override;
    ErrorCode CreateFileA(const std::string& path, FileUse use, FileHandle& file) override;
    std::optional<std::uint64_t> GetFileSize(FileHandle file) override;
    ErrorCode ReadFile(FileHandle file, std::span<std::uint8_t> buffer,
                       std::uint32_t& read) override;
    ErrorCode WriteFile(FileHandle file, std::span<const std::uint8_t> data,
                        std::uint32_t& written) override;
    ErrorCode FlushFileBuffers(FileHandle file) override;
    bool CloseFile(FileHandle file) override;

  private:
    struct OpenFile {
        std::shared_ptr<MemoryEntry> entry;
        FileUse use = FileUse::Read;
        std::size_t position = 0;
    };
    struct Search {
        std::vector<FoundFile> found;
        std::size_t next = 0;
    };

    bool IsBeingWritten(const MemoryEntry& entry) const;

    CallJournal& journal_;
    MemoryDisk& disk_;
    bool hasPathFileExists_ = true;
    Family family_ = Family::WindowsNt;
    std::vector<std::string> openedForWriting_;
    std::vector<std::string> deletedAtNextStart_;
    std::map<FileHandle, OpenFile> files_;
    std::map<SearchHandle, Search> searches_;
    std::uintptr_t nextHandle_ = 0x1000;
};

}  // namespace velkarix
