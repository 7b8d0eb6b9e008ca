#include "shell/DeleteItem.h"

#include "base/Text.h"
#include "registry/RegistryFile.h"
#include "shell/RegistryBackup.h"
#include "shell/Relocation.h"

namespace velkarix {
namespace {

// True when the caller may delete what `sections` holds; `exported` is the result of writing them.
bool BackUpItem(Application& application, const std::string& listName, ErrorCode exported,
                const std::string& sections) {
    return exported != error::FileNotFound &&
           KeepOrTell(application, listName, "backupItem", exported, sections);
}

}  // namespace

bool ConfirmDelete(Application& application, const std::string& text) {
    const std::string question =
        "Are you sure you want to delete the selected item: " + std::string(LineBreak) +
        std::string(LineBreak) + text;
    return application.Tell(MessageIcon::Question, question, MessageButtons::YesNo) ==
           MessageAnswer::Yes;
}

void DeleteItemKey(Application& application, const std::string& listName, Hive hive,
                   const std::string& key) {
    std::string sections;
    const ErrorCode exported = ExportKeyTree(application.machine.registry, hive, key, sections);
    if (BackUpItem(application, listName, exported, sections)) {
        DeleteKeyTree(application, hive, key);
    }
}

void DeleteItemValue(Application& application, const std::string& listName, Hive hive,
                     const std::string& key, const std::string& valueName) {
    std::string sections;
    const ErrorCode exported =
        ExportValue(application.machine.registry, hive, key, valueName, sections);
    if (BackUpItem(application, listName, exported, sections)) {
        application.registry.DeleteValue(hive, key, valueName, false);
    }
}

}  // namespace velkarix
