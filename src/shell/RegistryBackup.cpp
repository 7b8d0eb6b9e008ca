#include "shell/RegistryBackup.h"

#include "base/Text.h"
#include "registry/RegistryFile.h"
#include "shell/BackupSet.h"
#include "shell/TextFile.h"

namespace velkarix {
namespace {

// An earlier write may have been cut short; behind its broken line nothing could be merged.
bool CanBeContinued(const std::string& text) {
    return text.starts_with(RegistryFileHeader) && text.ends_with("\r\n\r\n");
}

}  // namespace

ErrorCode KeepRegistryFile(Application& application, const std::string& listName,
                           const std::string& sections) {
    FileSystem& files = application.machine.files;
    const std::string installed = application.settings.InstallFolder();
    // A file that is kept somewhere isn't found again.
    if (installed.empty()) return error::PathNotFound;
    const std::string folder = BackupFolder(installed);
    const ErrorCode made = files.CreateDirectoryA(folder.substr(0, folder.size() - 1));
    if (made != error::Success && made != error::AlreadyExists) return made;

    const std::string path =
        folder + BackupStem(application.machine.clock.GetLocalTime()) + "_" + listName + ".reg";
    std::string before;
    const ErrorCode read = ReadTextFile(files, path, before);
    const bool isNew = read == error::FileNotFound;
    if (!isNew && read != error::Success) return read;
    if (!isNew && !CanBeContinued(before)) return error::AlreadyExists;
    const std::string added = (isNew ? std::string(RegistryFileHeader) : std::string()) + sections;
    const ErrorCode written = AppendTextFile(files, path, added);
    if (written != error::Success) return written;
    return ReadTextFile(files, path) == before + added ? error::Success : error::WriteFault;
}

bool KeepOrTell(Application& application, const std::string& listName, const char* operation,
                ErrorCode exported, const std::string& sections) {
    const ErrorCode kept =
        exported == error::Success ? KeepRegistryFile(application, listName, sections) : exported;
    if (kept == error::Success) return true;
    application.Tell(MessageIcon::Information, std::string("Error Occurred ") + operation + ": " +
                                                   LineBreak.data() +
                                                   application.registry.GetSystemErrorText(kept));
    return false;
}

}  // namespace velkarix
