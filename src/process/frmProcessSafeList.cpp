// The commands of the process page that change the user's safe list.
#include <string>

#include "process/ClassifyProcess.h"
#include "process/ProcessColumns.h"
#include "process/frmProcess.h"

namespace velkarix {

// Both commands walk from the last row to the first, so that removing a row doesn't disturb the
// walk.

void frmProcess::cmdAdd_Click() {
    bool changed = false;
    for (std::size_t i = lstvProcess_.RowCount(); i > 0; --i) {
        ListRow& row = lstvProcess_.Row(i - 1);
        if (!row.Checked()) continue;
        const std::string key = ProcessKey(application_.machine, FullPath(row));
        if (IsInSafeList(safeProcessList_, key)) continue;
        safeProcessList_.push_back(key);
        verdictCache_.MarkSafeInCache(key);
        lstvProcess_.Remove(row);
        changed = true;
    }
    if (!changed) return;
    FileSystem& files = application_.machine.files;
    const ErrorCode result =
        SaveSafeList(files, safeProcessList_, SafeListFile(), EmptyItems::Write);
    if (result != error::Success) {
        application_.Tell(
            MessageIcon::Information,
            "Error Occurred cmdAdd: \r\n" + application_.registry.GetSystemErrorText(result));
        return;  // the list in memory keeps the change
    }
    ReadSafeList();
}

void frmProcess::ReadSafeList() {
    const std::string path = SafeListFile();
    application_.unread.Note(path, "",
                             LoadSafeList(application_.machine.files, safeProcessList_, path));
}

void frmProcess::cmdRemove_Click() {
    bool changed = false;
    for (std::size_t i = lstvProcess_.RowCount(); i > 0; --i) {
        ListRow& row = lstvProcess_.Row(i - 1);
        if (!row.Checked()) continue;
        const std::string key = ProcessKey(application_.machine, FullPath(row));
        if (!RemoveFromSafeList(safeProcessList_, key)) continue;
        row.SetChecked(false);
        verdictCache_.ClearSafeInCache(key);
        changed = true;
    }
    if (!changed) return;
    FileSystem& files = application_.machine.files;
    // Only a removal cleans the file of empty lines; its failure is silent.
    SaveSafeList(files, safeProcessList_, SafeListFile(), EmptyItems::Skip);
    ReadSafeList();
}

}  // namespace velkarix
