#include "process/ProcessBackup.h"

#include "base/Text.h"
#include "shell/BackupSet.h"
#include "shell/FileCompare.h"
#include "shell/FilePaths.h"
#include "shell/TextFile.h"
#include "shell/clsDeleteonReboot.h"

namespace velkarix {

std::string ProcessBackup::FileOfSet(const char* extension) const {
    return BackupFolder(application_.settings.InstallFolder()) + backupStamp_ + extension;
}

bool ProcessBackup::SayFailed(ErrorCode code) {
    application_.Tell(MessageIcon::Information, "Error Occurred backupProcess: " +
                                                    application_.registry.GetSystemErrorText(code));
    return false;
}

bool ProcessBackup::backupProcess(const std::string& path) {
    const SystemTime now = application_.machine.clock.GetLocalTime();
    backupStamp_ = BackupStem(now);
    FileSystem& files = application_.machine.files;
    const ErrorCode copied = files.CopyFileA(path, FileOfSet(BackupCopyExtension));
    if (copied != error::Success) return SayFailed(copied);
    // Beside the backup folder, not in it: a file of this name means that something is wrong with
    // the folder, and the user decides.
    const std::string odd =
        application_.settings.InstallFolder() + "\\Backup" + backupStamp_ + BackupCopyExtension;
    if (PathExists(files, odd)) {
        return application_.Tell(MessageIcon::Critical,
                                 "Backup failed for process.\r\n"
                                 " It means that you would not be able to restore the file in "
                                 "future\r\nContinue?",
                                 MessageButtons::YesNo) == MessageAnswer::Yes;
    }
    const ErrorCode written = WriteSet(path, now);
    return written == error::Success || SayFailed(written);
}

// The copy is compared before it counts: a disk that is full or failing can cut it short.
ErrorCode ProcessBackup::WriteSet(const std::string& path, const SystemTime& now) {
    FileSystem& files = application_.machine.files;
    if (!SameContent(files, path, FileOfSet(BackupCopyExtension))) return error::WriteFault;
    const std::string date = application_.machine.clock.GetDateFormatA(now);
    return WriteTextFile(files, FileOfSet(BackupRecordExtension), BackupLine({path, date}));
}

void ProcessBackup::DeleteProcessFile(const std::string& path) {
    const ErrorCode deleted = application_.machine.files.DeleteFileA(path);
    if (deleted == error::Success) return;
    const MessageAnswer answer =
        application_.Tell(MessageIcon::Critical,
                          "Error occurred while deleting the file." + std::string(LineBreak) +
                              application_.registry.GetSystemErrorText(deleted) +
                              "Would you like it to be deleted on next reboot?",
                          MessageButtons::YesNo);
    if (answer == MessageAnswer::Yes) {
        DeleteOnReboot(application_, path);
    } else {
        WithdrawSet();
    }
}

void ProcessBackup::WithdrawSet() {
    FileSystem& files = application_.machine.files;
    files.DeleteFileA(FileOfSet(BackupCopyExtension));
    files.DeleteFileA(FileOfSet(BackupRecordExtension));
}

}  // namespace velkarix
