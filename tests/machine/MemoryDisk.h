// The drives of the machine in memory and the files on them. Everything that looks at files (the
// file calls, INI files, version resources, icons, launches) looks here.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/Errors.h"
#include "tests/machine/MemoryEntry.h"

namespace velkarix {

class MemoryDisk {
  public:
    // A machine has drive C: with the folder of the program and C:\WINDOWS at first.
    MemoryDisk();

    // Makes the file, its folders and its drive as needed; one that is there is returned as it is.
    MemoryEntry& AddFile(const std::string& path);
    MemoryEntry& AddFolder(const std::string& path);
    // False when there was nothing at the path. A folder goes with all that is in it.
    bool Remove(const std::string& path);
    // What relative paths start from; the program's folder at first.
    void SetCurrentFolder(const std::string& path) { currentFolder_ = path; }
    // How many bytes can still be written before the disk is full; nothing is no limit.
    void SetFreeBytes(std::optional<std::uint64_t> bytes) { freeBytes_ = bytes; }
    const std::optional<std::uint64_t>& FreeBytes() const { return freeBytes_; }

    // Whether the system takes the last level for a device, in whatever folder.
    static bool IsDevice(const std::string& path);
    bool Exists(const std::string& path) const { return Find(path) != nullptr; }
    // A file's bytes as text; nothing when there is no such file.
    std::optional<std::string> ContentOf(const std::string& path) const;

    // The entry at a path, by long or short names without case; null when there is none.
    std::shared_ptr<MemoryEntry> Find(const std::string& path) const;
    // The path of an entry with the 8.3 name of each level that has one; empty when there is none.
    std::string ShortPathOf(const std::string& path) const;
    // The folder that a path's last level is in, and that level's name; null when there is no
    // such folder.
    std::shared_ptr<MemoryEntry> FindFolderOf(const std::string& path, std::string& lastName) const;
    // The file for reading; null, with the error, when it isn't there or can't be opened.
    std::shared_ptr<MemoryEntry> Readable(const std::string& path, ErrorCode& error) const;
    // The file for writing, made when its folder is there; null, with the error, when it can't.
    std::shared_ptr<MemoryEntry> Writable(const std::string& path, ErrorCode& error);
    // Takes up to `count` bytes from what is free and says how many there were.
    std::size_t TakeSpace(std::size_t count);
    // What a file had that was emptied.
    void GiveBack(std::size_t count);

  private:
    // A path's drive ("C:", "\\\\server\\share") and levels; nothing for what is no path.
    struct Parts {
        std::string drive;
        std::vector<std::string> levels;
    };
    std::optional<Parts> Split(const std::string& path) const;
    std::shared_ptr<MemoryEntry> Walk(const Parts& parts) const;
    MemoryEntry& Add(const std::string& path, std::uint32_t attributes);

    NamedList<MemoryEntry> drives_{ListOrder::Sorted};
    std::string currentFolder_;
    std::optional<std::uint64_t> freeBytes_;
};

}  // namespace velkarix
