#include "shell/FileMove.h"

#include "base/Text.h"
#include "shell/BackupSet.h"
#include "shell/FileCompare.h"
#include "shell/FilePaths.h"

namespace velkarix {

namespace {

// Copies, and compares what has arrived: a copy that was cut short is taken away again.
ErrorCode CopyWhole(FileSystem& files, const std::string& source, const std::string& destination) {
    const ErrorCode copied = files.CopyFileA(source, destination);
    if (copied == error::Success && SameContent(files, source, destination)) return copied;
    // Of a file that somebody else has taken away meanwhile the copy is all that is left.
    if (copied == error::Success && !IsTaken(files, source)) return error::FileNotFound;
    files.DeleteFileA(destination);
    return copied == error::Success ? error::WriteFault : copied;
}

}  // namespace

bool IsTaken(FileSystem& files, const std::string& path) {
    return PathExists(files, path) || FileLength(files, path).has_value();
}

ErrorCode KeepFile(Application& application, const std::string& path) {
    FileSystem& files = application.machine.files;
    const std::string installed = application.settings.InstallFolder();
    // A file that is kept somewhere isn't found again.
    if (installed.empty()) return error::PathNotFound;
    const std::string folder = BackupFolder(installed);
    const ErrorCode made = files.CreateDirectoryA(folder.substr(0, folder.size() - 1));
    if (made != error::Success && made != error::AlreadyExists) return made;
    const std::string copy =
        folder + BackupStem(application.machine.clock.GetLocalTime()) + "_" + FileNameOf(path);
    if (!IsTaken(files, copy)) return CopyWhole(files, path, copy);
    // Kept a moment ago already; another file of that name and second isn't overwritten.
    return SameContent(files, path, copy) ? error::Success : error::AlreadyExists;
}

ErrorCode MoveFileBetween(Application& application, const std::string& sourceFolder,
                          const std::string& destinationFolder, const std::string& name) {
    if (sourceFolder.empty() || destinationFolder.empty()) return error::PathNotFound;
    FileSystem& files = application.machine.files;
    const std::string source = sourceFolder + "\\" + name;
    const std::string destination = destinationFolder + "\\" + name;
    // To make room for the file there would take it away here.
    if (ToLower(source) == ToLower(destination)) return error::AlreadyExists;
    if (!PathExists(files, source)) return error::FileNotFound;
    if (IsTaken(files, destination)) {
        const ErrorCode kept = KeepFile(application, destination);
        if (kept != error::Success) return kept;
        files.DeleteFileA(destination);
    }
    const ErrorCode copied = CopyWhole(files, source, destination);
    if (copied == error::Success) files.DeleteFileA(source);
    return copied;
}

}  // namespace velkarix
