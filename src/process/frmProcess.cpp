#include "process/frmProcess.h"

#include "process/ProcessColumns.h"
#include "shell/FilePaths.h"
#include "shell/Skin.h"
#include "shell/frmviewInfo.h"

namespace velkarix {

namespace {

// The indices of optFilter.
constexpr int All = 0;
constexpr int Filtered = 1;

}  // namespace

frmProcess::frmProcess(Application& application, VerdictCache& verdictCache)
    : Form("frmProcess", "Processes", FormKind::Page),
      application_(application),
      verdictCache_(verdictCache),
      backup_(application),
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
    SetControls({&lstvProcess_, &fmFilter_, &filtered, &all, &cmdAdd_, &cmdKill_,
                 &cmdViewInformation_, &cmdRefresh_, &cmdRemove_, &cmdDelete_, &cmdReport_,
                 &cmdOpen_});
    SetAccelerators({{{Key::F5}, "cmdRefresh_Click"},
                     {{Key::P, true}, "cmdReport_Click"},
                     {{Key::Delete}, "cmdDelete_Click", &lstvProcess_}});
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
        ShowAllProcesses();
    } else {
        filterOn_ = true;
    }
    ReadSafeList();
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

void frmProcess::ShowAllProcesses() {
    optFilter_.Choose(All);
    optFilter_Click();
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
