#include "shell/ShortcutCheck.h"

#include <cstddef>
#include <cstdint>
#include <optional>

namespace velkarix {

namespace {

// The header: its own size, the class of shortcuts, flags that say which parts follow, and facts
// of the target.
constexpr std::size_t HeaderSize = 0x4C;
constexpr std::string_view Class("\x01\x14\x02\0\0\0\0\0\xC0\0\0\0\0\0\0\x46", 16);
constexpr std::size_t ClassOffset = 4;
constexpr std::size_t FlagsOffset = 20;

constexpr std::uint32_t HasItemList = 0x01;
constexpr std::uint32_t HasLocation = 0x02;
// Name, relative path, working folder, arguments, icon: texts, each behind the count of its
// characters.
constexpr std::uint32_t TextFlags[] = {0x04, 0x08, 0x10, 0x20, 0x40};
constexpr std::uint32_t IsUnicode = 0x80;

std::optional<std::uint32_t> NumberAt(std::string_view bytes, std::size_t offset,
                                      std::size_t size = 4) {
    if (offset > bytes.size() || bytes.size() - offset < size) return std::nullopt;
    std::uint32_t number = 0;
    for (std::size_t i = 0; i < size; ++i) {
        number |= std::uint32_t{static_cast<std::uint8_t>(bytes[offset + i])} << 8 * i;
    }
    return number;
}

// Takes the part off the front that begins with its size. `sizeBytes`: of the number; `counted`:
// whether that counts in itself. Nothing when it doesn't fit.
std::optional<std::string_view> TakePart(std::string_view& rest, std::size_t sizeBytes,
                                         bool counted) {
    const auto told = NumberAt(rest, 0, sizeBytes);
    if (!told) return std::nullopt;
    const std::size_t size = *told + (counted ? 0 : sizeBytes);
    if (size < sizeBytes || size > rest.size()) return std::nullopt;
    const std::string_view part = rest.substr(0, size);
    rest.remove_prefix(size);
    return part;
}

// Items, each with its size in front, up to one of no size.
bool IsItemList(std::string_view items) {
    for (;;) {
        if (NumberAt(items, 0, 2) == 0u) return true;
        if (!TakePart(items, 2, true)) return false;
    }
}

// Whether a text begins there and ends within `part`. 0 stands for none.
bool HoldsText(std::string_view part, std::uint32_t offset) {
    return offset == 0 || part.find('\0', offset) != std::string_view::npos;
}

// A part of the location that begins with its size and holds, at `textOffset`, the offset of a
// text. 0 stands for none.
bool HoldsPartWithText(std::string_view location, std::uint32_t offset, std::size_t textOffset) {
    if (offset == 0) return true;
    if (offset > location.size()) return false;
    std::string_view rest = location.substr(offset);
    const auto part = TakePart(rest, 4, true);
    const auto text = part ? NumberAt(*part, textOffset) : std::nullopt;
    return text && HoldsText(*part, *text);
}

// The volume or share, the path on it, and what stands behind that.
bool IsLocation(std::string_view location) {
    constexpr std::size_t VolumeOffset = 12;
    constexpr std::size_t PathOffset = 16;
    constexpr std::size_t ShareOffset = 20;
    constexpr std::size_t SuffixOffset = 24;
    constexpr std::size_t VolumeLabel = 12;
    constexpr std::size_t ShareName = 8;
    const auto suffix = NumberAt(location, SuffixOffset);
    return suffix && HoldsText(location, *suffix) &&
           HoldsText(location, *NumberAt(location, PathOffset)) &&
           HoldsPartWithText(location, *NumberAt(location, VolumeOffset), VolumeLabel) &&
           HoldsPartWithText(location, *NumberAt(location, ShareOffset), ShareName);
}

bool TakeText(std::string_view& rest, bool unicode) {
    const auto count = NumberAt(rest, 0, 2);
    const std::size_t size = 2 + count.value_or(0) * (unicode ? 2 : 1);
    if (!count || size > rest.size()) return false;
    rest.remove_prefix(size);
    return true;
}

// More blocks, each with its size in front. A size that has no room for itself ends them, and so
// does the file's end.
bool AreBlocks(std::string_view rest) {
    while (!rest.empty()) {
        const auto size = NumberAt(rest, 0);
        if (size && *size < 4) return true;
        if (!TakePart(rest, 4, true)) return false;
    }
    return true;
}

}  // namespace

bool IsWholeShortcut(std::string_view file) {
    if (file.size() < HeaderSize || NumberAt(file, 0) != HeaderSize ||
        file.substr(ClassOffset, Class.size()) != Class) {
        return false;
    }
    const std::uint32_t flags = *NumberAt(file, FlagsOffset);
    std::string_view rest = file.substr(HeaderSize);
    if ((flags & HasItemList) != 0) {
        const auto items = TakePart(rest, 2, false);
        if (!items || !IsItemList(items->substr(2))) return false;
    }
    if ((flags & HasLocation) != 0) {
        const auto location = TakePart(rest, 4, true);
        if (!location || !IsLocation(*location)) return false;
    }
    for (const std::uint32_t flag : TextFlags) {
        if ((flags & flag) != 0 && !TakeText(rest, (flags & IsUnicode) != 0)) return false;
    }
    return AreBlocks(rest);
}

}  // namespace velkarix
