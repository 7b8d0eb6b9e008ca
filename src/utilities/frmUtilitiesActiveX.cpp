// The protection from malicious ActiveX controls on the utilities page.
#include <cstdint>
#include <string>
#include <vector>

#include "registry/RegistryFile.h"
#include "shell/RegistryBackup.h"
#include "utilities/ActiveXList.h"
#include "utilities/frmUtilities.h"

namespace velkarix {

namespace {

// The browser never loads a control that has this flag.
constexpr std::int32_t KillBit = 0x400;

// What backups of removed keys are named for.
constexpr const char* BackupName = "ActiveX";

}  // namespace

void frmUtilities::cmdActiveXProtect_Click() {
    const ErrorCode listed =
        ForEachListed([&registry = application_.registry](const std::string& key) {
            registry.CreateKey(Hive::LocalMachine, key);
            registry.SetDwordValue(Hive::LocalMachine, key, "Compatibility Flags", KillBit);
        });
    TellEnd(listed, "Protection activated Successfully.");
}

// A key may hold what others have set: all that are to go are kept first, in one file.
void frmUtilities::cmdActiveXRemove_Click() {
    modRegistry& registry = application_.registry;
    std::string sections;
    std::vector<std::string> keys;
    const ErrorCode listed = ForEachListed([&](const std::string& key) {
        const ErrorCode exported =
            ExportKeyTree(application_.machine.registry, Hive::LocalMachine, key, sections);
        if (exported != error::Success) return registry.ShowKeyNotDeleted(key, exported);
        keys.push_back(key);
    });
    if (!keys.empty() &&
        !KeepOrTell(application_, BackupName, "backupItem", error::Success, sections)) {
        return;
    }
    for (const std::string& key : keys) registry.DeleteKey(Hive::LocalMachine, key, false);
    TellEnd(listed, "Protection removed Successfully.");
}

ErrorCode frmUtilities::ForEachListed(const std::function<void(const std::string& key)>& work) {
    Progress::Work progress(application_.progress, fmActiveX_.Text());
    return ForEachListedKey(application_.machine.files,
                            application_.settings.InstallFolder() + "\\MalActivex.scl",
                            [&](const std::string& key) {
                                progress.Step(key);
                                work(key);
                            });
}

void frmUtilities::TellEnd(ErrorCode result, const std::string& done) {
    if (result != error::Success) {
        application_.Tell(MessageIcon::Critical,
                          "Error occurred: " + application_.registry.GetSystemErrorText(result));
        return;
    }
    application_.Tell(MessageIcon::Information, done);
}

}  // namespace velkarix
