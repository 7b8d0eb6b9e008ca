// The files of the machine that the benchmarks run on, for reading, in the form that the program's
// logic reads files.
#pragma once

#include "platform/FileSystem.h"

namespace velkarix {

// Paths are the host's. Whatever would write fails with AccessDenied.
class HostFiles : public FileSystem {
  public:
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
};

}  // namespace velkarix
