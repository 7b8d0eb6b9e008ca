#include "registry/KeyListing.h"

#include <cstdint>
#include <set>
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
    std::set<std::string> names;
    for (std::uint32_t index = 0;; ++index) {
        Item item;
        const ErrorCode result = read(index, item);
        if (result == error::NoMoreItems) return error::Success;
        if (result != error::Success) return result;
        const std::string& name = NameOf(item);
        if (!IsReachable(name) || !names.insert(FoldedName(name)).second) return error::InvalidData;
        items.push_back(std::move(item));
    }
}

// Characters that the code page lacks are listed as others, by which another value, or none, is
// asked for.
ErrorCode AskForEach(Registry& registry, KeyHandle key, const std::vector<RawValue>& values) {
    for (const RawValue& value : values) {
        RawValue found;
        const ErrorCode result = QueryRawValue(registry, key, value.name, found);
        if (result == error::FileNotFound) return error::InvalidData;
        if (result != error::Success) return result;
        if (!StandsAs(found, value)) return error::InvalidData;
    }
    return error::Success;
}

}  // namespace

ErrorCode ListValues(Registry& registry, KeyHandle key, std::vector<RawValue>& values) {
    const ErrorCode result = ListAll(values, [&](std::uint32_t index, RawValue& value) {
        return EnumRawValue(registry, key, index, ValueNameCapacity, value);
    });
    return result == error::Success ? AskForEach(registry, key, values) : result;
}

ErrorCode ListSubKeys(Registry& registry, KeyHandle key, std::vector<std::string>& names) {
    return ListAll(names, [&](std::uint32_t index, std::string& name) {
        return registry.RegEnumKeyExA(key, index, KeyNameCapacity, name);
    });
}

}  // namespace velkarix
