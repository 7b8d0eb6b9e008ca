#include "registry/RawValue.h"

#include <algorithm>
#include <cstddef>

namespace velkarix {
namespace {

// Enough for nearly every value, so that a second call is rare.
constexpr std::size_t UsualSize = 4096;
constexpr int Attempts = 4;
constexpr std::uint32_t LargestValue = 64 * 1024 * 1024;

}  // namespace

bool MakeRoom(Bytes& buffer, std::uint32_t size) {
    if (size > LargestValue) return false;
    buffer.resize(size);
    return true;
}

ErrorCode EnumRawValue(Registry& registry, KeyHandle key, std::uint32_t index,
                       std::uint32_t nameCapacity, RawValue& value) {
    value.data.assign(UsualSize, 0);
    for (int attempt = 1;; ++attempt) {
        auto size = static_cast<std::uint32_t>(value.data.size());
        const ErrorCode result = registry.RegEnumValueA(key, index, nameCapacity, value.name,
                                                        value.type, value.data, size);
        if (result == error::Success) {
            value.data.resize(std::min<std::size_t>(size, value.data.size()));
            return result;
        }
        const bool isLarger = size > value.data.size();
        // One more call is due in any case; more than that only while the value grows meanwhile.
        if (result != error::MoreData || (attempt > 1 && !isLarger) || attempt == Attempts) {
            return result;
        }
        if (isLarger && !MakeRoom(value.data, size)) return result;
    }
}

}  // namespace velkarix
