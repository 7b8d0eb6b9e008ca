#include "registry/CopyKeyTree.h"

#include <cstdint>
#include <vector>

#include "registry/OpenKey.h"
#include "registry/RawValue.h"

namespace velkarix {
namespace {

// The longest names of the NT family, with their NUL and two bytes a character.
constexpr std::uint32_t ValueNameCapacity = 2 * 16383 + 1;
constexpr std::uint32_t KeyNameCapacity = 2 * 255 + 1;
// No tree of the system is deeper; a copy into the copied key itself would make an endless one.
constexpr int DeepestLevel = 512;

ErrorCode CopyValues(Registry& registry, KeyHandle from, KeyHandle to) {
    RawValue value;
    for (std::uint32_t index = 0;; ++index) {
        ErrorCode result = EnumRawValue(registry, from, index, ValueNameCapacity, value);
        if (result == error::NoMoreItems) return error::Success;
        if (result == error::Success) {
            result = registry.RegSetValueExA(to, value.name, value.type, value.data);
        }
        if (result != error::Success) return result;
    }
}

ErrorCode SubKeyNames(Registry& registry, KeyHandle key, std::vector<std::string>& names) {
    for (std::uint32_t index = 0;; ++index) {
        std::string name;
        const ErrorCode result = registry.RegEnumKeyExA(key, index, KeyNameCapacity, name);
        if (result == error::NoMoreItems) return error::Success;
        if (result != error::Success) return result;
        names.push_back(name);
    }
}

ErrorCode CopyLevel(Registry& registry, KeyHandle source, const std::string& subKey,
                    KeyHandle destination, int level) {
    if (level > DeepestLevel) return error::BadKey;
    OpenKey from(registry);
    ErrorCode result = from.Open(source, subKey, KeyAccess::Read);
    if (result == error::Success) result = CopyValues(registry, from.Handle(), destination);
    std::vector<std::string> names;
    if (result == error::Success) result = SubKeyNames(registry, from.Handle(), names);
    for (const std::string& name : names) {
        if (result != error::Success) break;
        OpenKey to(registry);
        result = to.Create(destination, name);
        if (result == error::Success) {
            result = CopyLevel(registry, from.Handle(), name, to.Handle(), level + 1);
        }
    }
    return result;
}

}  // namespace

ErrorCode CopyKeyTree(Registry& registry, KeyHandle source, const std::string& subKey,
                      KeyHandle destination) {
    return CopyLevel(registry, source, subKey, destination, 0);
}

}  // namespace velkarix
