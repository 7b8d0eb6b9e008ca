#include "registry/CopyKeyTree.h"

#include <vector>

#include "registry/KeyListing.h"
#include "registry/OpenKey.h"

namespace velkarix {
namespace {

ErrorCode CopyValues(Registry& registry, KeyHandle from, KeyHandle to) {
    std::vector<RawValue> values;
    ErrorCode result = ListValues(registry, from, values);
    for (const RawValue& value : values) {
        if (result != error::Success) break;
        result = registry.RegSetValueExA(to, value.name, value.type, value.data);
    }
    return result;
}

// A copy into the copied key itself would go down for ever, hence the level.
ErrorCode CopyLevel(Registry& registry, KeyHandle source, const std::string& subKey,
                    KeyHandle destination, int level) {
    if (level > DeepestKeyLevel) return error::BadKey;
    OpenKey from(registry);
    ErrorCode result = from.Open(source, subKey, KeyAccess::Read);
    if (result == error::Success) result = CopyValues(registry, from.Handle(), destination);
    std::vector<std::string> names;
    if (result == error::Success) result = ListSubKeys(registry, from.Handle(), names);
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
