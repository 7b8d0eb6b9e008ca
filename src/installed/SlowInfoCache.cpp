#include "installed/SlowInfoCache.h"

namespace velkarix {

namespace {

constexpr std::size_t RecordSize = 552;
constexpr std::size_t HasNameOffset = 4;
constexpr std::size_t NameOffset = 28;

}  // namespace

std::optional<std::u16string> FileOfSlowInfoCache(const Bytes& record) {
    if (record.size() != RecordSize || record[HasNameOffset] == 0) return std::nullopt;
    std::u16string name;
    for (std::size_t i = NameOffset; i + 1 < record.size(); i += 2) {
        const auto unit = static_cast<char16_t>(record[i] | record[i + 1] << 8);
        if (unit == 0) return name;
        name += unit;
    }
    return name;
}

}  // namespace velkarix
