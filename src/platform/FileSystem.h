// Files and folders, by the system's own calls.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>

#include "platform/Clock.h"
#include "platform/Errors.h"

namespace velkarix {

// An open file or a directory search. 0 is none.
using FileHandle = std::uintptr_t;
using SearchHandle = std::uintptr_t;

namespace fileAttribute {
constexpr std::uint32_t ReadOnly = 0x1;
constexpr std::uint32_t Hidden = 0x2;
constexpr std::uint32_t System = 0x4;
constexpr std::uint32_t Directory = 0x10;
constexpr std::uint32_t Archive = 0x20;
constexpr std::uint32_t Invalid = 0xFFFFFFFF;  // GetFileAttributesA: no such file
}  // namespace fileAttribute

struct FoundFile {
    std::uint32_t attributes = 0;
    FileTime creationTime = 0;
    std::uint64_t size = 0;  // bytes
    std::string name;        // the long name, without the folder
};

// What a file is opened for.
enum class FileUse {
    Read,     // an existing file, from its start
    Replace,  // written from its start; an existing file is emptied
    Append,   // written behind its end; made when missing
};

class FileSystem {
  public:
    virtual ~FileSystem() = default;

    // The first entry that fits `pattern` (a path whose last level may hold * and ?); 0 when
    // nothing does. The search stays open until FindClose.
    virtual SearchHandle FindFirstFileA(const std::string& pattern, FoundFile& found) = 0;
    // False past the last entry.
    virtual bool FindNextFileA(SearchHandle search, FoundFile& found) = 0;
    virtual bool FindClose(SearchHandle search) = 0;

    // Whether a file or folder is there; nothing where the shell library has no such call.
    virtual std::optional<bool> PathFileExistsA(const std::string& path) = 0;
    // The attributes of a file or folder, or fileAttribute::Invalid.
    virtual std::uint32_t GetFileAttributesA(const std::string& path) = 0;

    // Makes one folder; its parent must exist. The code says why not (AlreadyExists, ...).
    virtual ErrorCode CreateDirectoryA(const std::string& path) = 0;

    // Copies a file with its attributes; an existing target is replaced.
    virtual ErrorCode CopyFileA(const std::string& from, const std::string& to) = 0;
    virtual ErrorCode DeleteFileA(const std::string& path) = 0;
    // The 8.3 form of the path of something that exists, at most `capacity` bytes with the NUL;
    // empty when there is none.
    virtual std::string GetShortPathNameA(const std::string& path, std::uint32_t capacity) = 0;
    // Has the file deleted at the next start of the system (MOVEFILE_DELAY_UNTIL_REBOOT, without a
    // target). False on the 95 family, which has no such service.
    virtual bool MoveFileExA(const std::string& path) = 0;

    // Opens a file; `file` is set on Success only. Readers share with other readers and writers.
    virtual ErrorCode CreateFileA(const std::string& path, FileUse use, FileHandle& file) = 0;
    // The length in bytes; nothing on failure.
    virtual std::optional<std::uint64_t> GetFileSize(FileHandle file) = 0;
    // Fills the front of `buffer`; `read` is the count of bytes, 0 at the end of the file.
    virtual ErrorCode ReadFile(FileHandle file, std::span<std::uint8_t> buffer,
                               std::uint32_t& read) = 0;
    // `written` may be short when the disk is full.
    virtual ErrorCode WriteFile(FileHandle file, std::span<const std::uint8_t> data,
                                std::uint32_t& written) = 0;
    // Has what was written put on the disk before it comes back. AccessDenied for a reader.
    virtual ErrorCode FlushFileBuffers(FileHandle file) = 0;
    virtual bool CloseFile(FileHandle file) = 0;  // CloseHandle
};

}  // namespace velkarix
