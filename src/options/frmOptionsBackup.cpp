// The backups of deleted files on the options page: their list, restoring and deleting them.
#include <optional>
#include <string>

#include "base/Text.h"
#include "options/BackupColumns.h"
#include "options/frmOptions.h"
#include "shell/BackupSet.h"
#include "shell/FileCompare.h"
#include "shell/FileMove.h"
#include "shell/FilePaths.h"
#include "shell/FolderListing.h"
#include "shell/ListServices.h"
#include "shell/TextFile.h"

namespace velkarix {

namespace {

// The name of a set's copy, from that of its record.
std::string CopyName(const std::string& prcName) {
    const std::string_view extension = BackupRecordExtension;
    const std::size_t at = ToLower(prcName).find(extension);
    if (at == std::string::npos) return prcName;
    return std::string(prcName).replace(at, extension.size(), BackupCopyExtension);
}

std::string SavedPath(const ListRow& row) {
    return row.Text(backupColumn::Folder) + row.Text(backupColumn::FileName);
}

}  // namespace

std::string frmOptions::BackupFile(const std::string& name) {
    return BackupFolder(application_.settings.InstallFolder()) + name;
}

// What is restored into the folder of the backups would replace one of them, or itself. Whether a
// path by short names or round about leads there can't be told by its text: one that ends in the
// name of a file there is refused wherever it leads.
bool frmOptions::IsBackup(const std::string& path) {
    const std::string name = path.substr(path.find_last_of("\\/:") + 1);
    return ToLower(path).starts_with(ToLower(BackupFile({}))) ||
           PathExists(application_.machine.files, BackupFile(name));
}

void frmOptions::LoadBackupList() {
    lstvBackup_.Clear();
    FileSystem& files = application_.machine.files;
    const std::string folder = application_.settings.InstallFolder() + "\\backup";
    const std::vector<std::string> names = ListFolder(application_, folder, "*.prc");
    Progress::Work work(application_.progress, lstvBackup_.Text(), names.size());
    for (const std::string& name : names) {
        work.Step(name);
        const std::optional<std::string> line = ReadFirstLine(files, BackupFile(name));
        const std::optional<BackupRecord> record = ParseBackupLine(line.value_or(""));
        if (record) AddBackupRow(record->path, record->date, name);
    }
    if (lstvBackup_.RowCount() > 0) AutoSizeColumns(lstvBackup_);
}

void frmOptions::AddBackupRow(const std::string& path, const std::string& date,
                              const std::string& prcName) {
    const std::size_t last = path.rfind('\\');
    const std::size_t split = last == std::string::npos || last == 0 ? 0 : last + 1;
    ListRow& row = lstvBackup_.Add(prcName, date, 0);
    row.SetText(backupColumn::FileName, path.substr(split));
    row.SetText(backupColumn::Folder, path.substr(0, split));
}

void frmOptions::cmdrestore_Click() {
    const ListRow* row = lstvBackup_.SelectedRow();
    if (row == nullptr) return;
    FileSystem& files = application_.machine.files;
    const std::string full = SavedPath(*row);
    if (IsBackup(full)) {
        application_.Tell(MessageIcon::Information, "File Could not be restored");
        return;
    }
    const std::string copy = BackupFile(CopyName(row->Key()));
    const ErrorCode kept = KeepPresent(full, copy);
    if (kept != error::Success) return TellNotRestored(kept);
    if (IsTaken(files, full) && files.DeleteFileA(full) != error::Success) {
        application_.Tell(MessageIcon::Critical,
                          "There is already an application running with same name and path.");
        return;
    }
    const ErrorCode copied = files.CopyFileA(copy, full);
    if (copied != error::Success) return TellNotRestored(copied);
    // A file that came out short isn't restored, and its backup must stay.
    if (!SameContent(files, copy, full)) {
        application_.Tell(MessageIcon::Information, "File Could not be restored");
        return;
    }
    application_.Tell(MessageIcon::Information, "File restored successfully");
    if (!chkDelete_.Checked()) return;
    DeleteSet(copy, BackupFile(row->Key()));
    LoadBackupList();
}

// What the restored file takes the place of isn't asked about, and may be all that there is of it.
ErrorCode frmOptions::KeepPresent(const std::string& path, const std::string& copy) {
    FileSystem& files = application_.machine.files;
    if (!IsTaken(files, path) || SameContent(files, path, copy)) return error::Success;
    return KeepFile(application_, path);
}

void frmOptions::TellNotRestored(ErrorCode code) {
    application_.Tell(MessageIcon::Critical, "Error Occurred cmdRestore: " +
                                                 application_.registry.GetSystemErrorText(code));
}

void frmOptions::cmdDelete_Click() {
    const ListRow* row = lstvBackup_.SelectedRow();
    if (row == nullptr) return;
    const MessageAnswer answer = application_.Tell(
        MessageIcon::Question,
        "Are you sure you want to delete backup for: \r\n\r\n" + row->Text(backupColumn::FileName),
        MessageButtons::YesNo);
    if (answer != MessageAnswer::Yes) return;
    // The record first: a copy without one is never shown again.
    DeleteSet(BackupFile(row->Key()), BackupFile(CopyName(row->Key())));
    LoadBackupList();
}

void frmOptions::DeleteSet(const std::string& first, const std::string& second) {
    application_.machine.files.DeleteFileA(first);
    application_.machine.files.DeleteFileA(second);
}

}  // namespace velkarix
