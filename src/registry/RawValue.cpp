#include "registry/RawValue.h"

#include <algorithm>
#include <cstddef>

#include "base/Text.h"

namespace velkarix {
namespace {

// Enough for nearly every value, so that a second call is rare.
constexpr std::size_t UsualSize = 4096;
constexpr int Attempts = 4;
constexpr std::uint32_t LargestValue = 64 * 1024 * 1024;

// `read` fills the buffer and tells the value's size: it is called again with a buffer of that size
// when the first was too small.
template <typename Read>
ErrorCode ReadGrowing(Bytes& data, Read read) {
    data.assign(UsualSize, 0);
    for (int attempt = 1;; ++attempt) {
        auto size = static_cast<std::uint32_t>(data.size());
        const ErrorCode result = read(data, size);
        if (result == error::Success) {
            data.resize(std::min<std::size_t>(size, data.size()));
            return result;
        }
        const bool isLarger = size > data.size();
        // One more call is due in any case; more than that only while the value grows meanwhile.
        if (result != error::MoreData || (attempt > 1 && !isLarger) || attempt == Attempts) {
            return result;
        }
        if (isLarger && !MakeRoom(data, size)) return result;
    }
}

bool IsText(std::uint32_t type) {
    return type == registryType::Sz || type == registryType::ExpandSz ||
           type == registryType::MultiSz;
}

}  // namespace

Bytes DwordBytes(std::int32_t number) {
    Bytes data;
    for (int shift = 0; shift < 32; shift += 8) {
        data.push_back(static_cast<std::uint8_t>(static_cast<std::uint32_t>(number) >> shift));
    }
    return data;
}

bool MakeRoom(Bytes& buffer, std::uint32_t size) {
    if (size > LargestValue) return false;
    buffer.resize(size);
    return true;
}

bool IsReachable(std::string_view name) {
    return name.find('\0') == std::string_view::npos;
}

std::string FoldedName(const std::string& name) {
    std::string folded = ToLower(name);
    for (std::size_t i = 0; i < name.size(); ++i) {
        if (!IsCharacter(name, i)) folded[i] = name[i];
    }
    return folded;
}

ErrorCode EnumRawValue(Registry& registry, KeyHandle key, std::uint32_t index,
                       std::uint32_t nameCapacity, RawValue& value) {
    return ReadGrowing(value.data, [&](Bytes& data, std::uint32_t& size) {
        return registry.RegEnumValueA(key, index, nameCapacity, value.name, value.type, data, size);
    });
}

ErrorCode QueryRawValue(Registry& registry, KeyHandle key, const std::string& name,
                        RawValue& value) {
    value.name = name;
    if (!IsReachable(name)) return error::InvalidData;
    return ReadGrowing(value.data, [&](Bytes& data, std::uint32_t& size) {
        return registry.RegQueryValueExA(key, name, value.type, &data, size);
    });
}

bool StandsAs(const RawValue& standing, const RawValue& wanted) {
    if (standing.type != wanted.type) return false;
    if (standing.data == wanted.data) return true;
    if (!IsText(wanted.type) || (!wanted.data.empty() && wanted.data.back() == 0)) return false;
    // The 95 family can't store a simple text of no bytes; the other kinds of text it can.
    if (wanted.data.empty() && wanted.type != registryType::Sz) return false;
    Bytes ended = wanted.data;
    ended.push_back(0);
    return standing.data == ended;
}

}  // namespace velkarix
