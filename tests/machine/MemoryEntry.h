// One file or folder of the disk in memory. The setters return the entry, so that a test says what
// is there in one line: machine.AddFile("C:\\a.exe").Content("MZ").Created(2003, 5, 1).
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "base/Bytes.h"
#include "base/Picture.h"
#include "platform/Clock.h"
#include "platform/FileSystem.h"
#include "platform/Shortcuts.h"
#include "tests/machine/NamedList.h"

namespace velkarix {

struct MemoryEntry {
    // A field of a version resource and its text.
    using VersionFields = std::vector<std::pair<std::string, std::string>>;

    MemoryEntry(std::string entryName, std::uint32_t entryAttributes)
        : name(std::move(entryName)), attributes(entryAttributes) {}

    MemoryEntry& Content(std::string_view text);
    MemoryEntry& Content(Bytes data);
    // The creation time, as the disk keeps it (UTC).
    MemoryEntry& Created(FileTime time);
    MemoryEntry& Created(int year, int month, int day, int hour = 0, int minute = 0);
    // Of fileAttribute, added to those that it has.
    MemoryEntry& With(std::uint32_t moreAttributes);
    MemoryEntry& ReadOnly() { return With(fileAttribute::ReadOnly); }
    MemoryEntry& Hidden() { return With(fileAttribute::Hidden); }
    // Somebody holds the file open for himself: opening it gives SharingViolation.
    MemoryEntry& Unreadable();
    // A program that runs from it: it can be read, but neither written nor deleted.
    MemoryEntry& InUse(bool now = true);
    // The 8.3 name under which it is found as well.
    MemoryEntry& ShortName(std::string alias);
    // A version resource with these fields in US English (040904B0).
    MemoryEntry& Version(const VersionFields& fields);
    // Any version resource, also a broken one; see VersionResourceBuilder.
    MemoryEntry& VersionBlock(Bytes block);
    // The bytes of a shortcut file (.lnk) that says this.
    MemoryEntry& Shortcut(const velkarix::Shortcut& shortcut);
    // The icon at an index as ExtractIconExA takes it (negative: the icon's number in the file).
    MemoryEntry& Icon(int index, Picture large, Picture small);

    bool IsFolder() const { return (attributes & fileAttribute::Directory) != 0; }

    std::string name;
    std::string shortName;
    std::uint32_t attributes = 0;
    FileTime creationTime = 0;
    Bytes content;
    bool unreadable = false;
    bool inUse = false;
    Bytes versionBlock;
    std::map<int, std::pair<Picture, Picture>> icons;  // large and small
    NamedList<MemoryEntry> children{ListOrder::Sorted};
};

}  // namespace velkarix
