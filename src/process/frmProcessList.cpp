// The list of the process page: how it is filled, and what the user does with its rows.
#include <algorithm>

#include "base/Text.h"
#include "process/ClassifyProcess.h"
#include "process/ProcessColumns.h"
#include "process/ProcessEntries.h"
#include "process/frmProcess.h"
#include "shell/FilePaths.h"
#include "shell/FileRows.h"
#include "shell/ListServices.h"
#include "shell/ShellOpen.h"

namespace velkarix {

namespace {

constexpr const char* Pictures[] = {SoftwarePicture};

constexpr FileColumns FactColumns = {processColumn::Size, processColumn::Created,
                                     processColumn::Company, processColumn::Product,
                                     processColumn::Description};

}  // namespace

void frmProcess::LoadProcessList() {
    ClearRows(lstvProcess_, imglProcess_, Pictures);
    const ProcessEntries entries = ListProcesses(application_.machine, application_.WindowsName);
    // This program runs, at least.
    application_.unread.Note("The running processes", "", !entries.empty());
    Progress::Work work(application_.progress, lstvProcess_.Text(), entries.size());
    for (const ProcessEntry& entry : entries) {
        work.Step(entry.path);
        ShowEntry(entry.path, entry.id);
    }
    if (lstvProcess_.RowCount() == 0) return;
    AutoSizeColumns(lstvProcess_);
    lstvProcess_ItemClick(lstvProcess_.Row(0));
}

void frmProcess::ShowEntry(const std::string& path, ProcessId id) {
    const std::string name = FileNameOf(path);
    if (!filterOn_) {
        AddProcessRow(path, name, id, false);
        return;
    }
    const std::string lowerPath = ToLower(path);
    if (IsBootProcessPath(lowerPath)) return;
    const ProcessVerdict verdict =
        ClassifyProcess(application_, safeProcessList_, verdictCache_, lowerPath);
    if (!verdict.IsSystem && !verdict.IsSafe) AddProcessRow(path, name, id, verdict.IsSuspicious);
}

void frmProcess::AddProcessRow(const std::string& path, const std::string& name, ProcessId id,
                               bool suspicious) {
    const std::string key = EncodeDigits(static_cast<std::int32_t>(id));
    const bool exists = PathExists(application_.machine.files, path);
    const std::size_t image =
        exists ? AddFileIcon(application_.machine.shell, imglProcess_, path) : DefaultImage;
    ListRow& row = lstvProcess_.Add(key, name, image);
    row.SetText(processColumn::Folder, FolderOf(path));
    if (exists) ShowFileFacts(row, FactColumns, ReadFileFacts(application_.machine, path));
    MarkRow(application_.appearance, row, true, suspicious);
}

void frmProcess::lstvProcess_ItemClick(const ListRow& row) {
    FileSystem& files = application_.machine.files;
    cmdOpen_.SetEnabled(PathExists(files, row.Text(processColumn::Folder)));
    cmdDelete_.SetEnabled(PathExists(files, FullPath(row)));
}

void frmProcess::lstvProcess_ColumnClick(int column) {
    SortByColumn(lstvProcess_, column - 1);
}

void frmProcess::lstvProcess_DblClick() {
    const ListRow* row = lstvProcess_.SelectedRow();
    if (row == nullptr) return;
    std::string query = row->Text(processColumn::Name);
    std::string company = row->Text(processColumn::Company);
    std::replace(company.begin(), company.end(), ' ', '+');
    if (!company.empty()) query += "+" + company;
    ShellOpen(application_.machine.shell, SearchAddress(query));
}

// With rows but none of them selected there is nothing that the menu could be about; an empty
// list still offers to refresh.
void frmProcess::lstvProcess_MouseUp(MouseButton button) {
    const bool nothingMeant = lstvProcess_.RowCount() > 0 && lstvProcess_.SelectedRow() == nullptr;
    if (button != MouseButton::Right || nothingMeant) return;
    SetMenuEntries();
    application_.menus.PopupMenu("mnuProcess", *this);
}

void frmProcess::SetMenuEntries() {
    Menu& menu = *application_.menus.Find("mnuProcess");
    const auto enable = [&menu](const char* entry, bool enabled) {
        menu.Find(entry)->enabled = enabled;
    };
    const bool rows = lstvProcess_.RowCount() > 0;
    for (const char* entry : {"mnuKill", "mnuView", "mnuReport", "mnuGoogle"}) enable(entry, rows);
    enable("mnuAdd", rows && filterOn_);
    enable("mnuRemove", rows && !filterOn_);
    const ListRow* row = lstvProcess_.SelectedRow();
    FileSystem& files = application_.machine.files;
    enable("mnuOpen", row != nullptr && PathExists(files, row->Text(processColumn::Folder)));
    enable("mnuDelete", row != nullptr && PathExists(files, FullPath(*row)));
}

}  // namespace velkarix
