// The commands of the browser page's lists, and the gestures on their rows.
#include <algorithm>
#include <utility>

#include "browser/ItemList.h"
#include "shell/DeleteItem.h"
#include "shell/FilePaths.h"
#include "shell/ItemChange.h"
#include "shell/ListServices.h"
#include "shell/ShellOpen.h"
#include "shell/frmviewInfo.h"

namespace velkarix {

namespace {

// Builds a list anew after a change. Events were served meanwhile, so that the page which began
// the change may have gone, and come again.
void Reload(Application& application, const std::string& page, const std::string& handler) {
    if (Form* loaded = application.forms.Loaded(page)) loaded->Run(handler);
}

}  // namespace

// What the moves need is taken from this list before the first one: it may go meanwhile.
void ItemList::MoveChecked(bool enabled) {
    const ItemChange change(application_);
    if (!change.Begun()) return;
    std::vector<BrowserItem> items;
    for (std::size_t i = 0; i < list_.RowCount(); ++i) {
        const ListRow& row = list_.Row(i);
        BrowserItem item = ItemOf(row);
        if (row.Checked() && item.enabled == enabled) items.push_back(std::move(item));
    }
    Application& application = application_;
    const std::string page = page_.Name();
    const std::string refresh = RefreshHandler();
    const ItemPlaces& places = shape_.places;
    Progress::Work work(application.progress, list_.Text(), items.size());
    for (const BrowserItem& item : items) {
        work.Step(item.name);
        MoveItem(application, places, item);
    }
    Reload(application, page, refresh);
}

void ItemList::DeleteSelected() {
    const ItemChange change(application_);
    const ListRow* row = list_.SelectedRow();
    if (!change.Begun() || row == nullptr) return;
    const BrowserItem item = ItemOf(*row);
    if (!ConfirmDelete(application_, row->Text(0))) return;
    Application& application = application_;
    const std::string page = page_.Name();
    const std::string refresh = RefreshHandler();
    DeleteItem(application, shape_.places, item);
    Reload(application, page, refresh);
}

void ItemList::CheckRows(bool checked) {
    for (std::size_t i = 0; i < list_.RowCount(); ++i) list_.Row(i).SetChecked(checked);
}

void ItemList::ViewInformation() {
    const ListRow* row = list_.SelectedRow();
    if (row == nullptr) return;
    const ItemColumns& columns = shape_.columns;
    ShowFileInformation(application_, row->Text(columns.file) + " " + row->Text(columns.clsid),
                        PathOf(*row), row->Text(columns.facts.size));
}

void ItemList::OpenFolder() {
    const ListRow* row = list_.SelectedRow();
    if (row == nullptr || !FileExists(*row)) return;
    ShowInExplorer(application_.machine.shell, application_.MainWindow(), PathOf(*row));
}

// ---- Reports

void ItemList::MakeReport() {
    RunReportCommand(application_, page_, list_, shape_.report.command,
                     [this](const std::string& file) { PrintList(file); });
}

bool ItemList::PrintList(const std::string& filePath) {
    const ItemReport& report = shape_.report;
    std::function<std::string(const ListRow&)> rowFile;
    if (report.folder != NoColumn) {
        rowFile = [&report](const ListRow& row) {
            return row.Text(report.folder) + row.Text(report.file);
        };
    }
    return PrintReport(application_, list_, {report.lines, rowFile, report.failure}, filePath);
}

// ---- Gestures

void ItemList::ItemClick(const ListRow& row) {
    if (shape_.folderButton == nullptr) return;
    page_.Find(shape_.folderButton)->SetEnabled(FileExists(row));
}

void ItemList::DoubleClick() {
    const ListRow* row = list_.SelectedRow();
    if (row == nullptr || !shape_.searchesTheWeb) return;
    ShellOpen(application_.machine.shell, SearchAddress(row->Text(shape_.columns.clsid)));
}

void ItemList::MouseUp(MouseButton button) {
    const ListRow* row = list_.SelectedRow();
    if (button != MouseButton::Right || row == nullptr) return;
    if (shape_.openEntry != nullptr) {
        application_.menus.Find(shape_.menu)->Find(shape_.openEntry)->enabled = FileExists(*row);
    }
    application_.menus.PopupMenu(shape_.menu, page_);
}

}  // namespace velkarix
