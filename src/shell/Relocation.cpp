#include "shell/Relocation.h"

#include "registry/KeyTree.h"
#include "registry/RegistryFile.h"
#include "shell/RegistryBackup.h"
#include "shell/ValueMove.h"

namespace velkarix {

namespace {

// True when the move may go on: what stands at the destination is a part of what comes, or is kept.
bool KeepWhatIsOverwritten(Application& application, const std::string& listName, Hive hive,
                           const std::string& source, const std::string& destination) {
    Registry& raw = application.machine.registry;
    if (ContainsTree(raw, hive, source, destination) == error::Success) return true;
    std::string sections;
    const ErrorCode exported = ExportKeyTree(raw, hive, destination, sections);
    return KeepOrTell(application, listName, "backupItem", exported, sections);
}

// Whether the copy holds what the source has no more: somebody else has taken it away meanwhile,
// and it stands nowhere else.
bool HoldsMore(Registry& raw, Hive hive, const std::string& copy, const std::string& source) {
    // What can't be reached by its name is copied under another one.
    return ContainsNames(raw, hive, source, source) != error::InvalidData &&
           ContainsNames(raw, hive, source, copy) == error::CantWrite;
}

}  // namespace

void RelocateKey(Application& application, const std::string& listName, Hive hive,
                 const std::string& source, const std::string& destination) {
    Registry& raw = application.machine.registry;
    if (!KeyExists(raw, hive, source)) return;
    const bool destinationWasThere = KeyExists(raw, hive, destination);
    if (destinationWasThere &&
        !KeepWhatIsOverwritten(application, listName, hive, source, destination)) {
        return;
    }
    const bool copied = application.registry.CopyKey(hive, source, hive, destination);
    // A copy that reports success may still be short.
    const ErrorCode compared =
        copied ? ContainsTree(raw, hive, destination, source) : error::CantWrite;
    if (compared == error::Success) {
        DeleteKeyTree(application, hive, source);
        return;
    }
    // What a failed copy leaves where there was nothing would be listed as an item.
    if (!destinationWasThere && !HoldsMore(raw, hive, destination, source)) {
        application.registry.DeleteSubKeys(hive, destination);
        application.registry.DeleteKey(hive, destination, true);
    }
    if (copied) application.registry.ShowKeyNotDeleted(source, compared);
}

bool DeleteKeyTree(Application& application, Hive hive, const std::string& key) {
    application.registry.DeleteSubKeys(hive, key);
    return application.registry.DeleteKey(hive, key, false);
}

void RelocateValue(Application& application, const std::string& listName, Hive hive,
                   const std::string& source, const std::string& destination,
                   const std::string& valueName) {
    MoveValue(application, {listName, "endisHook", hive, source, destination, valueName}, textForm);
}

void RelocateToolbarValue(Application& application, const std::string& listName, Hive hive,
                          const std::string& source, const std::string& destination,
                          const std::string& valueName) {
    MoveValue(application, {listName, "endisToolbar", hive, source, destination, valueName},
              hive == Hive::CurrentUser ? markForm : textForm);
}

}  // namespace velkarix
