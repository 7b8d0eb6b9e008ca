// The commands of the browser page's lists, and the gestures on their rows.
#include <algorithm>
#include <utility>

#include "base/Text.h"
#include "browser/ItemList.h"
#include "shell/FilePaths.h"
#include "shell/ItemChange.h"
#include "shell/ListServices.h"
#include "shell/ShellOpen.h"
#include "shell/frmviewInfo.h"

namespace velkarix {

// All items are taken from the rows before the first one moves, and this list isn't looked at
// again unless it still lives: events that are served meanwhile may rebuild the list or end its
// page.
void ItemList::MoveChecked(bool enabled) {
    const ItemChange change(application_);
    if (!change.Begun()) return;
    std::vector<BrowserItem> items;
    for (std::size_t i = 0; i < list_.RowCount(); ++i) {
        const ListRow& row = list_.Row(i);
        BrowserItem item = ItemOf(row);
        if (row.Checked() && item.enabled == enabled) items.push_back(std::move(item));
    }
    const std::weak_ptr<const bool> life = life_;
    Application& application = application_;
    const ItemPlaces& places = shape_.places;
    for (const BrowserItem& item : items) MoveItem(application, places, item);
    if (!life.expired()) Load();
}

void ItemList::DeleteSelected() {
    const ItemChange change(application_);
    const ListRow* row = list_.SelectedRow();
    if (!change.Begun() || row == nullptr) return;
    const BrowserItem item = ItemOf(*row);
    const std::string question =
        "Are you sure you want to delete the selected item: " + std::string(LineBreak) +
        std::string(LineBreak) + row->Text(0);
    if (application_.Tell(MessageIcon::Question, question, MessageButtons::YesNo) !=
        MessageAnswer::Yes) {
        return;
    }
    const std::weak_ptr<const bool> life = life_;
    DeleteItem(application_, shape_.places, item);
    if (!life.expired()) Load();
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
