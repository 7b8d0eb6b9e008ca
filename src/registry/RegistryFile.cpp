#include "registry/RegistryFile.h"

#include "registry/HiveName.h"
#include "registry/KeyListing.h"
#include "registry/KeyTree.h"
#include "registry/OpenKey.h"
#include "registry/RegistryFileValue.h"

namespace velkarix {
namespace {

// `path` begins with the hive's name.
ErrorCode AppendSection(const std::string& path, const std::vector<RawValue>& values,
                        std::string& text) {
    if (!IsWritableName(path)) return error::InvalidData;
    text += "[" + path + "]\r\n";
    for (const RawValue& value : values) {
        if (!IsWritableValueName(value.name)) return error::InvalidData;
        text += RegistryFileValue(value);
    }
    text += "\r\n";
    return error::Success;
}

ErrorCode AppendLevel(Registry& registry, KeyHandle parent, const std::string& subKey,
                      const std::string& path, int level, std::string& text) {
    if (level > DeepestKeyLevel) return error::BadKey;
    OpenKey key(registry);
    ErrorCode result = key.Open(parent, subKey, KeyAccess::Read);
    if (result != error::Success) return result;
    std::vector<RawValue> values;
    result = ListValues(registry, key.Handle(), values);
    if (result == error::Success) result = AppendSection(path, values, text);
    std::vector<std::string> names;
    if (result == error::Success) result = ListSubKeys(registry, key.Handle(), names);
    for (const std::string& name : names) {
        if (result != error::Success) break;
        result = AppendLevel(registry, key.Handle(), name, path + "\\" + name, level + 1, text);
    }
    return result;
}

}  // namespace

ErrorCode ExportKeyTree(Registry& registry, Hive hive, const std::string& key, std::string& text) {
    std::string sections;
    const ErrorCode result = AppendLevel(registry, Registry::HandleOf(hive), key,
                                         NameOf(hive) + ("\\" + key), 0, sections);
    if (result == error::Success) text += sections;
    return result;
}

ErrorCode ExportValue(Registry& registry, Hive hive, const std::string& key,
                      const std::string& valueName, std::string& text) {
    RawValue value;
    const ErrorCode result = ReadRawValue(registry, hive, key, valueName, value);
    return result == error::Success ? ExportSection(hive, key, {value}, text) : result;
}

ErrorCode ExportSection(Hive hive, const std::string& key, const std::vector<RawValue>& values,
                        std::string& text) {
    std::string section;
    const ErrorCode result = AppendSection(NameOf(hive) + ("\\" + key), values, section);
    if (result == error::Success) text += section;
    return result;
}

}  // namespace velkarix
