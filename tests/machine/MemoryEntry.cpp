#include "tests/machine/MemoryEntry.h"

#include <utility>

#include "tests/machine/MemoryClock.h"
#include "tests/machine/ShortcutFile.h"
#include "tests/machine/VersionResourceBuilder.h"

namespace velkarix {

MemoryEntry& MemoryEntry::Content(std::string_view text) {
    return Content(Bytes(text.begin(), text.end()));
}

MemoryEntry& MemoryEntry::Content(Bytes data) {
    content = std::move(data);
    return *this;
}

MemoryEntry& MemoryEntry::Created(FileTime time) {
    creationTime = time;
    return *this;
}

MemoryEntry& MemoryEntry::Created(int year, int month, int day, int hour, int minute) {
    return Created(ToFileTime(MakeTime(year, month, day, hour, minute)));
}

MemoryEntry& MemoryEntry::With(std::uint32_t moreAttributes) {
    attributes |= moreAttributes;
    return *this;
}

MemoryEntry& MemoryEntry::Unreadable() {
    unreadable = true;
    return *this;
}

MemoryEntry& MemoryEntry::InUse(bool now) {
    inUse = now;
    return *this;
}

MemoryEntry& MemoryEntry::ShortName(std::string alias) {
    shortName = std::move(alias);
    return *this;
}

MemoryEntry& MemoryEntry::Version(const VersionFields& fields) {
    return VersionBlock(
        VersionResourceBuilder().Translation(0x409, 0x4B0).Strings("040904B0", fields).Build());
}

MemoryEntry& MemoryEntry::VersionBlock(Bytes block) {
    versionBlock = std::move(block);
    return *this;
}

MemoryEntry& MemoryEntry::Shortcut(const velkarix::Shortcut& shortcut) {
    return Content(MakeShortcutFile(shortcut));
}

MemoryEntry& MemoryEntry::Icon(int index, Picture large, Picture small) {
    icons[index] = {std::move(large), std::move(small)};
    return *this;
}

}  // namespace velkarix
