#include "startup/frmStartup.h"

#include <iterator>

#include "shell/FilePaths.h"
#include "shell/Report.h"
#include "shell/frmviewInfo.h"
#include "startup/StartupColumns.h"

namespace velkarix {

namespace {

// Row after row, four in a row.
constexpr CommandButton<frmStartup> Buttons[] = {
    {"cmdDisable", "Disable Checked Items", &frmStartup::cmdDisable_Click},
    {"cmdDelete", "Delete Selected item", &frmStartup::cmdDelete_Click},
    {"cmdReport", "Generate Report", &frmStartup::cmdReport_Click},
    {"cmdRefresh", "Refresh", &frmStartup::cmdRefresh_Click},
    {"cmdEnable", "Enable Checked Items", &frmStartup::cmdEnable_Click},
    {"cmdViewInformation", "View Information", &frmStartup::cmdViewInformation_Click},
    {"cmdFolder", "Open Folder", &frmStartup::cmdFolder_Click},
};
constexpr int ButtonColumns = 4;

}  // namespace

frmStartup::frmStartup(Application& application, bool& toldOfShortcuts)
    : Form("frmStartup", "Startup", FormKind::Page),
      application_(application),
      toldOfShortcuts_(toldOfShortcuts),
      tvwStartup_("tvwStartup", "Places that Windows starts programs from",
                  [this](const TreeNode& node) { tvwStartup_NodeClick(node); }),
      fmStartup_("fmStartup", "Startup Items (Current Selection: All Items)"),
      lstvStartup_("lstvStartup", "Startup items",
                   {std::begin(StartupColumnCaptions), std::end(StartupColumnCaptions)},
                   {[this](ListRow& row) { lstvStartup_ItemClick(row); },
                    [this](int column) { sort_.Click(lstvStartup_, column - 1); },
                    {},
                    [this](MouseButton button) { lstvStartup_MouseUp(button); }}) {
    BuildStartupTree();  // before its width is asked for
    MakeLayout();
}

void frmStartup::MakeLayout() {
    std::vector<Control*> controls = {&tvwStartup_, &fmStartup_, &lstvStartup_};
    Layout buttons = Grid(ButtonColumns, {});
    buttons_.Make<frmStartup>(*this, Buttons, controls, buttons);
    SetControls(std::move(controls));
    SetAccelerators({{{Key::F5}, "cmdRefresh_Click"},
                     {{Key::P, true}, "cmdReport_Click"},
                     {{Key::Delete}, "cmdDelete_Click", &lstvStartup_}});
    SetLayout(Column({Row({Column({Item(tvwStartup_, 1)}),
                           Group(fmStartup_, Column({Item(lstvStartup_, 1)}), 1)},
                          1),
                      Row({Space(), std::move(buttons)})}));
}

void frmStartup::Form_Load() {
    buttons_.ApplySkin();
    ResolveFolders();
    ClearStartupList();
    shortcuts_.emplace(application_.machine.shortcuts, application_.machine.files);
    cmdRefresh_Click();  // no node is selected yet: it shows all items
    lstvStartup_.Sort(startupColumn::Name, SortOrder::Ascending);
    if (lstvStartup_.RowCount() > 0) lstvStartup_.Select(&lstvStartup_.Row(0));
    if (!shortcuts_->Available() && !toldOfShortcuts_) {
        toldOfShortcuts_ = true;
        application_.Tell(MessageIcon::Information,
                          "Shortcuts can't be read on this system. The shortcuts in the startup "
                          "folders are not listed.");
    }
}

// The button works on the folder alone.
void frmStartup::lstvStartup_ItemClick(const ListRow& row) {
    Find("cmdFolder")
        ->SetEnabled(PathExists(application_.machine.files, row.Text(startupColumn::Folder)));
}

// The entry asks for the folder joined to itself, which is never there: it stays grey, and the
// button serves.
void frmStartup::lstvStartup_MouseUp(MouseButton button) {
    const ListRow* row = lstvStartup_.SelectedRow();
    if (button != MouseButton::Right || row == nullptr) return;
    const std::string& folder = row->Text(startupColumn::Folder);
    application_.menus.Find("mnuStartup")->Find("mnuStartup_Open")->enabled =
        PathExists(application_.machine.files, folder + folder);
    application_.menus.PopupMenu("mnuStartup", *this);
}

void frmStartup::cmdViewInformation_Click() {
    const ListRow* row = lstvStartup_.SelectedRow();
    if (row == nullptr) return;
    const std::string& file = row->Text(startupColumn::File);
    const std::string& name = row->Text(startupColumn::Name);
    ShowFileInformation(application_, file.empty() ? name : name + " (" + file + ")",
                        StartupFile(*row), row->Text(startupColumn::Facts.size));
}

void frmStartup::cmdFolder_Click() {
    const ListRow* row = lstvStartup_.SelectedRow();
    if (row == nullptr || !PathExists(application_.machine.files, StartupFile(*row))) return;
    ShowInExplorer(application_.machine.shell, application_.MainWindow(), StartupFile(*row));
}

}  // namespace velkarix
