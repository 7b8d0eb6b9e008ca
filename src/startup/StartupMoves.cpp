#include "startup/StartupMoves.h"

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

}  // namespace

bool RelocateRunValue(Application& application, Hive hive, const std::string& sourceKey,
                      const std::string& destinationKey, const std::string& valueName) {
    if (!IsMissing(application, hive, sourceKey, valueName)) {
        return MoveValue(
            application,
            {StartupBackupName, "endisRun", hive, sourceKey, destinationKey, valueName}, textForm);
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
