// The commands of the process page that change the user's safe list.
#include <string>

#include "process/ClassifyProcess.h"
#include "process/ProcessColumns.h"
#include "process/frmProcess.h"

namespace velkarix {

// Both commands walk from the last row to the first, so that removing a row doesn't disturb the
// walk.

void frmProcess::cmdAdd_Click() {
    if (lstvProcess_.Counts().ticked == 0) return;
    const ErrorCode known = EnsureSafeList();
    if (known != error::Success) return TellNotAdded(known);
    bool changed = false;
    for (std::size_t i = lstvProcess_.RowCount(); i > 0; --i) {
        ListRow& row = lstvProcess_.Row(i - 1);
        if (!row.Checked()) continue;
        const std::string key = ProcessKey(application_, FullPath(row));
        if (IsInSafeList(safeProcessList_, key)) continue;
        safeProcessList_.push_back(key);
        verdictCache_.MarkSafeInCache(key);
        lstvProcess_.Remove(row);
        changed = true;
    }
    if (!changed) return;
    const ErrorCode result = SaveSafeList(application_.machine.files, safeProcessList_,
                                          SafeListFile(), EmptyItems::Write);
    // The list in memory keeps the change.
    if (result != error::Success) return TellNotAdded(result);
    ReadSafeList();
}

void frmProcess::TellNotAdded(ErrorCode code) {
    application_.Tell(MessageIcon::Information, "Error Occurred cmdAdd: \r\n" +
                                                    application_.registry.GetSystemErrorText(code));
}

void frmProcess::ReadSafeList() {
    const std::string path = SafeListFile();
    safeListFailure_ = LoadSafeList(application_.machine.files, safeProcessList_, path);
    application_.unread.Note(path, "", safeListFailure_ == error::Success);
}

ErrorCode frmProcess::EnsureSafeList() {
    if (safeListFailure_ != error::Success) ReadSafeList();
    return safeListFailure_;
}

void frmProcess::cmdRemove_Click() {
    if (lstvProcess_.Counts().ticked == 0 || EnsureSafeList() != error::Success) return;
    bool changed = false;
    for (std::size_t i = lstvProcess_.RowCount(); i > 0; --i) {
        ListRow& row = lstvProcess_.Row(i - 1);
        if (!row.Checked()) continue;
        const std::string key = ProcessKey(application_, FullPath(row));
        if (!RemoveFromSafeList(safeProcessList_, key)) continue;
        row.SetChecked(false);
        verdictCache_.ClearSafeInCache(key);
        changed = true;
    }
    if (!changed) return;
    // Only a removal cleans the file of empty lines; its failure is silent.
    SaveSafeList(application_.machine.files, safeProcessList_, SafeListFile(), EmptyItems::Skip);
    ReadSafeList();
}

}  // namespace velkarix
