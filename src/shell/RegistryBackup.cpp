#include "shell/RegistryBackup.h"

#include <optional>

#include "registry/RegistryFile.h"
#include "shell/BackupSet.h"
#include "shell/FilePaths.h"
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
    const std::string folder = BackupFolder(application.settings.InstallFolder());
    const ErrorCode made = files.CreateDirectoryA(folder.substr(0, folder.size() - 1));
    if (made != error::Success && made != error::AlreadyExists) return made;

    const std::string path =
        folder + BackupStem(application.machine.clock.GetLocalTime()) + "_" + listName + ".reg";
    std::string before;
    std::string added = std::string(RegistryFileHeader) + sections;
    if (PathExists(files, path)) {
        before = ReadTextFile(files, path).value_or("");
        if (!CanBeContinued(before)) return error::AlreadyExists;
        added = sections;
    }
    const ErrorCode written = AppendTextFile(files, path, added);
    if (written != error::Success) return written;
    return ReadTextFile(files, path) == before + added ? error::Success : error::WriteFault;
}

}  // namespace velkarix
