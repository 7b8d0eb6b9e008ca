#include "registry/KeyTree.h"

#include <vector>

#include "registry/KeyListing.h"
#include "registry/OpenKey.h"

namespace velkarix {
namespace {

// What is missing was to be there.
ErrorCode MissingIsCantWrite(ErrorCode code) {
    return code == error::FileNotFound ? error::CantWrite : code;
}

enum class Compared { NamesAndData, Names };

ErrorCode ContainsValues(Registry& registry, KeyHandle whole, KeyHandle part, Compared compared) {
    std::vector<RawValue> values;
    ErrorCode result = ListValues(registry, part, values);
    for (const RawValue& value : values) {
        if (result != error::Success) break;
        RawValue standing;
        result = MissingIsCantWrite(QueryRawValue(registry, whole, value.name, standing));
        if (result == error::Success && compared == Compared::NamesAndData &&
            !StandsAs(standing, value)) {
            result = error::CantWrite;
        }
    }
    return result;
}

ErrorCode ContainsLevel(Registry& registry, KeyHandle wholeParent, const std::string& whole,
                        KeyHandle partParent, const std::string& part, Compared compared,
                        int level) {
    if (level > DeepestKeyLevel) return error::BadKey;
    OpenKey partKey(registry);
    ErrorCode result = partKey.Open(partParent, part, KeyAccess::Read);
    if (result != error::Success) return result;
    OpenKey wholeKey(registry);
    result = MissingIsCantWrite(wholeKey.Open(wholeParent, whole, KeyAccess::Read));
    if (result == error::Success) {
        result = ContainsValues(registry, wholeKey.Handle(), partKey.Handle(), compared);
    }
    std::vector<std::string> names;
    if (result == error::Success) result = ListSubKeys(registry, partKey.Handle(), names);
    for (const std::string& name : names) {
        if (result != error::Success) break;
        result = ContainsLevel(registry, wholeKey.Handle(), name, partKey.Handle(), name, compared,
                               level + 1);
    }
    return result;
}

}  // namespace

bool KeyExists(Registry& registry, Hive hive, const std::string& key) {
    OpenKey open(registry);
    const ErrorCode opened = open.Open(Registry::HandleOf(hive), key, KeyAccess::Read);
    return opened != error::FileNotFound && opened != error::PathNotFound;
}

ErrorCode ReadRawValue(Registry& registry, Hive hive, const std::string& key,
                       const std::string& valueName, RawValue& value) {
    OpenKey open(registry);
    const ErrorCode opened = open.Open(Registry::HandleOf(hive), key, KeyAccess::Read);
    if (opened != error::Success) return opened;
    return QueryRawValue(registry, open.Handle(), valueName, value);
}

ErrorCode WriteRawValue(Registry& registry, Hive hive, const std::string& key,
                        const RawValue& value) {
    OpenKey open(registry);
    const ErrorCode opened = open.Open(Registry::HandleOf(hive), key, KeyAccess::Write);
    if (opened != error::Success) return opened;
    return registry.RegSetValueExA(open.Handle(), value.name, value.type, value.data);
}

ErrorCode ContainsTree(Registry& registry, Hive hive, const std::string& whole,
                       const std::string& part) {
    const KeyHandle parent = Registry::HandleOf(hive);
    return ContainsLevel(registry, parent, whole, parent, part, Compared::NamesAndData, 0);
}

ErrorCode ContainsNames(Registry& registry, Hive hive, const std::string& whole,
                        const std::string& part) {
    const KeyHandle parent = Registry::HandleOf(hive);
    return ContainsLevel(registry, parent, whole, parent, part, Compared::Names, 0);
}

}  // namespace velkarix
