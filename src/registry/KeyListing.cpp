#include "registry/KeyListing.h"

#include <cstdint>
#include <utility>

namespace velkarix {
namespace {

// The longest names of the NT family, with their NUL and two bytes a character.
constexpr std::uint32_t ValueNameCapacity = 2 * 16383 + 1;
constexpr std::uint32_t KeyNameCapacity = 2 * 255 + 1;

const std::string& NameOf(const RawValue& value) {
    return value.name;
}
const std::string& NameOf(const std::string& key) {
    return key;
}

// `read` gives what stands at an index, or the code why not.
template <typename Item, typename Read>
ErrorCode ListAll(std::vector<Item>& items, Read read) {
    items.clear();
    for (std::uint32_t index = 0;; ++index) {
        Item item;
        const ErrorCode result = read(index, item);
        if (result == error::NoMoreItems) return error::Success;
        if (result != error::Success) return result;
        if (!IsReachable(NameOf(item))) return error::InvalidData;
        items.push_back(std::move(item));
    }
}

}  // namespace

ErrorCode ListValues(Registry& registry, KeyHandle key, std::vector<RawValue>& values) {
    return ListAll(values, [&](std::uint32_t index, RawValue& value) {
        return EnumRawValue(registry, key, index, ValueNameCapacity, value);
    });
}

ErrorCode ListSubKeys(Registry& registry, KeyHandle key, std::vector<std::string>& names) {
    return ListAll(names, [&](std::uint32_t index, std::string& name) {
        return registry.RegEnumKeyExA(key, index, KeyNameCapacity, name);
    });
}

}  // namespace velkarix
