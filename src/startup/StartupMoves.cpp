#include "startup/StartupMoves.h"

#include <algorithm>

#include "registry/KeyTree.h"
#include "shell/ValueMove.h"

namespace velkarix {

namespace {

// Asked twice, since a value that only seemed to be gone would be deleted without having moved, or
// written over.
bool IsMissing(Application& application, Hive hive, const std::string& key,
               const std::string& valueName) {
    RawValue value;
    const auto look = [&] {
        return ReadRawValue(application.machine.registry, hive, key, valueName, value);
    };
    return look() == error::FileNotFound && look() == error::FileNotFound;
}

// Listed by that name and not found by it: the code page lacks some of the characters of its own.
bool IsListed(Application& application, Hive hive, const std::string& key,
              const std::string& valueName) {
    const std::vector<RegValueEntry> values = application.registry.EnumValues(hive, key);
    return std::any_of(values.begin(), values.end(),
                       [&](const RegValueEntry& value) { return value.name == valueName; });
}

}  // namespace

bool RelocateRunValue(Application& application, Hive hive, const std::string& sourceKey,
                      const std::string& destinationKey, const std::string& valueName) {
    if (!IsMissing(application, hive, sourceKey, valueName)) {
        return MoveValue(
            application,
            {StartupBackupName, "endisRun", hive, sourceKey, destinationKey, valueName}, textForm);
    }
    if (IsListed(application, hive, sourceKey, valueName)) {
        application.registry.ShowValueNotDeleted(sourceKey, valueName, error::FileNotFound);
        return false;
    }
    // A value that is gone counts as an empty one, and the user hears that it can't be deleted. It
    // doesn't replace what lies at the destination: that may be all that is left of the item.
    if (IsMissing(application, hive, destinationKey, valueName) &&
        !application.registry.SetStringValue(hive, destinationKey, valueName, "")) {
        return false;
    }
    application.registry.DeleteValue(hive, sourceKey, valueName, false);
    return true;
}

}  // namespace velkarix
