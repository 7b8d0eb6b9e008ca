#include "process/frmProcess.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "base/Text.h"
#include "process/ClassifyProcess.h"
#include "process/ProcessColumns.h"
#include "process/ProcessEntries.h"
#include "shell/FilePaths.h"
#include "shell/ListServices.h"
#include "shell/ShellOpen.h"
#include "shell/Skin.h"
#include "shell/clsIcon.h"
#include "shell/frmviewInfo.h"

namespace velkarix {

namespace {

// The indices of optFilter.
constexpr int All = 0;
constexpr int Filtered = 1;

// The columns that show a fact of the file, and the fact's row.
struct FactColumn {
    std::size_t column;
    int fact;
};
const FactColumn FactColumns[] = {{processColumn::Created, 12},
                                  {processColumn::Company, 7},
                                  {processColumn::Product, 0},
                                  {processColumn::Description, 2}};

constexpr std::size_t DefaultImage = 1;

}  // namespace

frmProcess::frmProcess(Application& application, VerdictCache& verdictCache)
    : Form("frmProcess", "Processes", FormKind::Page),
      application_(application),
      verdictCache_(verdictCache),
      fileInfo_(application.machine),
      lstvProcess_("lstvProcess", "Running processes", ProcessColumnCaptions(),
                   {[this](ListRow& row) { lstvProcess_ItemClick(row); },
                    [this](int column) { lstvProcess_ColumnClick(column); },
                    [this] { lstvProcess_DblClick(); },
                    [this](MouseButton button) { lstvProcess_MouseUp(button); }}),
      fmFilter_("fmFilter", "Show Process"),
      optFilter_("optFilter", {"All", "Filtered"}, Filtered, [this] { optFilter_Click(); }),
      cmdAdd_("cmdAdd", "Add Checked to Safe list", [this] { cmdAdd_Click(); }),
      cmdRemove_("cmdRemove", "Remove Checked from Safe list", [this] { cmdRemove_Click(); }),
      cmdKill_("cmdKill", "Kill process", [this] { cmdKill_Click(); }),
      cmdDelete_("cmdDelete", "Delete Process", [this] { cmdDelete_Click(); }),
      cmdViewInformation_("cmdViewInformation", "View Information",
                          [this] { cmdViewInformation_Click(); }),
      cmdReport_("cmdReport", "Generate Report", [this] { cmdReport_Click(); }),
      cmdRefresh_("cmdRefresh", "Refresh", [this] { cmdRefresh_Click(); }),
      cmdOpen_("cmdOpen", "Open Folder", [this] { cmdOpen_Click(); }) {
    cmdRemove_.SetEnabled(false);
    MakeLayout();
}

void frmProcess::MakeLayout() {
    OptionButton& all = optFilter_.Option(All);
    OptionButton& filtered = optFilter_.Option(Filtered);
    SetControls({&lstvProcess_, &fmFilter_, &filtered, &all, &cmdAdd_, &cmdRemove_, &cmdKill_,
                 &cmdDelete_, &cmdViewInformation_, &cmdReport_, &cmdRefresh_, &cmdOpen_});
    SetAccelerators({{Key::F5, false, "cmdRefresh_Click"}});
    SetLayout(Column(
        {Item(lstvProcess_, 1),
         Row({Group(fmFilter_, Column({Item(filtered), Item(all)})),
              Grid(4, {Item(cmdAdd_), Item(cmdKill_), Item(cmdViewInformation_), Item(cmdRefresh_),
                       Item(cmdRemove_), Item(cmdDelete_), Item(cmdReport_), Item(cmdOpen_)})})}));
}

void frmProcess::Form_Load() {
    ApplySkin();
    const std::string backup = application_.settings.InstallFolder() + "\\backup";
    if (!PathExists(application_.machine.files, backup)) {
        application_.machine.files.CreateDirectoryA(backup);
    }
    if (NumericPrefix(application_.settings.ReadIni("Main", "Filter", "1")) != Filtered) {
        optFilter_.Choose(All);
        optFilter_Click();
    } else {
        filterOn_ = true;
    }
    LoadSafeList(application_.machine.files, safeProcessList_, SafeListFile());
    LoadProcessList();
    if (lstvProcess_.RowCount() > 0) {
        lstvProcess_.Sort(processColumn::Name, SortOrder::Ascending);
        lstvProcess_.Select(&lstvProcess_.Row(0));
    }
}

void frmProcess::ApplySkin() {
    for (Button* button : {&cmdAdd_, &cmdRemove_, &cmdKill_, &cmdDelete_, &cmdViewInformation_,
                           &cmdReport_, &cmdRefresh_, &cmdOpen_}) {
        SkinControl(*button, "button");
    }
}

std::string frmProcess::SafeListFile() {
    return application_.settings.InstallFolder() + "\\SafeProcess.vkl";
}

void frmProcess::LoadProcessList() {
    lstvProcess_.Clear();
    lstvProcess_.SetImages(nullptr);
    imglProcess_.Clear();
    imglProcess_.Add(StockPicture{"Software"});
    lstvProcess_.SetImages(&imglProcess_);
    for (const ProcessEntry& entry :
         ListProcesses(application_.machine, application_.WindowsName)) {
        ShowEntry(entry.path, entry.id);
    }
    if (lstvProcess_.RowCount() == 0) return;
    AutoSizeColumns(lstvProcess_);
    lstvProcess_ItemClick(lstvProcess_.Row(0));
}

void frmProcess::ShowEntry(const std::string& path, ProcessId id) {
    const std::string name = ProcessName(path);
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
    std::size_t image = DefaultImage;
    if (exists) {
        clsIcon icons(application_.machine.shell);
        if (std::optional<Picture> icon = icons.GetIconFromFile(path, 0, false)) {
            image = imglProcess_.Add(std::move(*icon));
        }
    }
    ListRow& row = lstvProcess_.Add(key, name, image);
    row.SetText(processColumn::Folder, ProcessFolder(path));
    if (exists) {
        fileInfo_.GetFileDescription(path);
        row.SetText(processColumn::Size, FileSizeText(application_.machine.files, path));
        for (const FactColumn& each : FactColumns) {
            row.SetText(each.column, fileInfo_.getItem(each.fact));
        }
    }
    MarkRow(application_.appearance, row, true, suspicious);
}

void frmProcess::optFilter_Click() {
    SetFilter(optFilter_.Chosen() != All);
    application_.settings.WriteIni("Main", "Filter", std::to_string(optFilter_.Chosen()));
    LoadProcessList();
}

// Adding is offered where the safe files are hidden, removing where they can be seen.
void frmProcess::SetFilter(bool on) {
    filterOn_ = on;
    cmdAdd_.SetEnabled(on);
    cmdRemove_.SetEnabled(!on);
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

void frmProcess::cmdViewInformation_Click() {
    const ListRow* row = lstvProcess_.SelectedRow();
    if (row == nullptr) return;
    ShowFileInformation(application_, row->Text(processColumn::Name), FullPath(*row),
                        row->Text(processColumn::Size));
}

void frmProcess::cmdRefresh_Click() {
    LoadProcessList();
}

void frmProcess::cmdOpen_Click() {
    const ListRow* row = lstvProcess_.SelectedRow();
    if (row == nullptr || !PathExists(application_.machine.files, FullPath(*row))) return;
    ShowInExplorer(application_.machine.shell, application_.MainWindow(), FullPath(*row));
}

}  // namespace velkarix
