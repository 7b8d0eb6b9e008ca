#include "startup/frmStartup.h"

#include <algorithm>
#include <iterator>

#include "shell/FilePaths.h"
#include "shell/Report.h"
#include "shell/Skin.h"
#include "shell/frmviewInfo.h"
#include "startup/StartupColumns.h"

namespace velkarix {

namespace {

constexpr const char* AllNodes = "All";

struct NodeEntry {
    const char* key;
    const char* text;
    const char* picture;
    const char* parent;
    bool expanded;
    // What the list shows of the node, in this order; null ends it.
    void (frmStartup::*loads[4])();
    const char* selection;  // as the caption names it
};

constexpr NodeEntry Nodes[] = {
    {AllNodes,
     "All Items",
     "AllItems",
     "",
     true,
     {&frmStartup::LoadHKLMRun, &frmStartup::LoadHKCURun, &frmStartup::LoadCUStartupFolder,
      &frmStartup::LoadLMStartupFolder},
     "All Items"},
    {"LM",
     "Local Machine",
     "Computer",
     AllNodes,
     true,
     {&frmStartup::LoadHKLMRun, &frmStartup::LoadLMStartupFolder},
     "Local Machine"},
    {"HKLM",
     "Registry",
     "Registry",
     "LM",
     false,
     {&frmStartup::LoadHKLMRun},
     "Local Machine Regitry"},
    {"LMStartup",
     "Startup Folder",
     "Folder",
     "LM",
     false,
     {&frmStartup::LoadLMStartupFolder},
     "Local Machine Startup Folder"},
    {"CU",
     "Current User",
     "User",
     AllNodes,
     true,
     {&frmStartup::LoadHKCURun, &frmStartup::LoadCUStartupFolder},
     "Current User"},
    {"HKCU",
     "Registry",
     "Registry",
     "CU",
     false,
     {&frmStartup::LoadHKCURun},
     "Current User Registry"},
    {"CUStartup",
     "Startup Folder",
     "Folder",
     "CU",
     false,
     {&frmStartup::LoadCUStartupFolder},
     "Current User Startup Folder"},
};

std::string CaptionOf(const char* selection) {
    return std::string("Startup Items (Current Selection: ") + selection + ")";
}

struct ButtonEntry {
    const char* name;
    const char* caption;
    void (frmStartup::*command)();
};

// Row after row, four in a row.
constexpr ButtonEntry Buttons[] = {
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
      fmStartup_("fmStartup", CaptionOf(Nodes[0].selection)),
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
    for (const ButtonEntry& each : Buttons) {
        buttons_.push_back(std::make_unique<Button>(
            each.name, each.caption, [this, command = each.command] { (this->*command)(); }));
        controls.push_back(buttons_.back().get());
        buttons.children.push_back(Item(*buttons_.back()));
    }
    SetControls(std::move(controls));
    SetAccelerators({{Key::F5, false, "cmdRefresh_Click"}});
    SetLayout(Column({Row({Column({Item(tvwStartup_, 1)}),
                           Group(fmStartup_, Column({Item(lstvStartup_, 1)}), 1)},
                          1),
                      Row({Space(), std::move(buttons)})}));
}

void frmStartup::Form_Load() {
    for (const auto& button : buttons_) SkinControl(*button, "button");
    ResolveFolders();
    ClearStartupList();
    shortcuts_.emplace(application_.machine.shortcuts);
    const TreeNode* all = tvwStartup_.Find(AllNodes);
    tvwStartup_.Select(all);
    tvwStartup_NodeClick(*all);
    lstvStartup_.Sort(startupColumn::Name, SortOrder::Ascending);
    if (lstvStartup_.RowCount() > 0) lstvStartup_.Select(&lstvStartup_.Row(0));
    if (!shortcuts_->Available() && !toldOfShortcuts_) {
        toldOfShortcuts_ = true;
        application_.Tell(MessageIcon::Information,
                          "Shortcuts can't be read on this system. The shortcuts in the startup "
                          "folders are not listed.");
    }
}

void frmStartup::BuildStartupTree() {
    for (const NodeEntry& node : Nodes) {
        tvwStartup_.Add(node.key, node.text, node.picture, node.parent, node.expanded);
    }
}

void frmStartup::tvwStartup_NodeClick(const TreeNode& node) {
    if (node.key == currentNodeKey_) return;
    const auto* entry = std::find_if(std::begin(Nodes), std::end(Nodes),
                                     [&](const NodeEntry& each) { return node.key == each.key; });
    ClearStartupList();
    for (const auto load : entry->loads) {
        if (load != nullptr) (this->*load)();
    }
    fmStartup_.SetText(CaptionOf(entry->selection));
    AutoSizeColumns(lstvStartup_);
    currentNodeKey_ = node.key;
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

void frmStartup::cmdRefresh_Click() {
    if (tvwStartup_.SelectedNode() == nullptr) tvwStartup_.Select(tvwStartup_.Find(AllNodes));
    currentNodeKey_.clear();
    tvwStartup_NodeClick(*tvwStartup_.SelectedNode());
}

}  // namespace velkarix
