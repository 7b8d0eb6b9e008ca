#include "tests/faults/FaultTable.h"

#include "tests/faults/CommandList.h"

namespace velkarix {
namespace {

constexpr const char* Nothing[] = {
    // Looking at a list, or marking its rows.
    "*.lstv*_ItemClick",
    "*.lstv*_ItemCheck",
    "*.lstv*_ColumnClick",
    "*.lstv*_MouseUp",
    "frmIE.lstvMenu_DblClick",
    "frmIE.lstvDomains_DblClick",
    "frmIE.lstvProtocolDefaults_DblClick",
    "frmIE.lstvSecurityZone_DblClick",
    "frmStartup.lstvStartup_DblClick",
    "frmOptions.lstvBackup_DblClick",
    "frmStartup.tvwStartup_NodeClick",
    "*.cmdRefresh*_Click",
    "frmIE.cmd*Refresh_Click",
    "frmIE.cmdDomainCheckAll_Click",
    "frmIE.cmdDomainUncheckAll_Click",
    "*.cmdViewInfo*_Click",
    "frmIE.cmdProtocolViewInfo_Click",
    "frmIE.cmdHookInfo_Click",

    // Choosing a view.
    "frmIE.cmdBHO_Click",
    "frmIE.cmdToolbar_Click",
    "frmIE.cmdButton_Click",
    "frmIE.cmdMenu_Click",
    "frmIE.cmdProtocol_Click",
    "frmIE.cmdDomain_Click",
    "frmIE.cmdURLs_Click",
    "frmIE.cmdAdvance_Click",
    "frmIE.tb*_Click",
    "frmAddRemove.opt*_Click",  // kept when the page is left

    // Filling in what another command applies.
    "*.txt*_Change",
    "frmIE.cmb*_Click",
    "frmIE.chkProxyEnabled_Click",
    "frmIE.cmdBlank_Click",
    "frmIE.cmdSearch*_Click",
    "frmIE.cmdCustomizeSearch_Click",
    "frmIE.cmdDefPrefix_Click",
    "frmOptions.chkProcess_Click",
    "frmOptions.chkIE_Click",
    "frmOptions.chkStartup_Click",
    "frmOptions.chkAddremove_Click",
    "frmUtilities.chkAutoDBCheck_Click",  // kept when the page is left

    // Dialogs, and pages that keep nothing.
    "frmMain.lblAbout_Click",
    "frmMain.lblUnread_Click",
    "frmMain.cmdFind*_Click",
    "frmMain.Key*_Press",   // find and copy
    "frmMain.Form_Unload",  // the pages keep their own
    "frmAbout.*",
    "frmviewInfo.*",
    "frmIE.Form_*",
    "frmOptions.Form_*",
    "frmAddRemove.Form_Load",
    "frmProcess.Form_Unload",
    "frmStartup.Form_Unload",
};

void Append(std::vector<FaultRow>& all, std::vector<FaultRow> rows) {
    for (FaultRow& row : rows) {
        all.push_back({row.command, [row] {
                           std::vector<FaultScene> scenes = row.scenes();
                           for (FaultScene& scene : scenes) {
                               if (scene.give) continue;
                               scene.give = [command = row.command](RunningProgram& program) {
                                   GiveCommand(program, command);
                               };
                           }
                           return scenes;
                       }});
    }
}

}  // namespace

std::vector<FaultRow> AllFaultRows() {
    std::vector<FaultRow> all;
    for (const auto rows :
         {FrameRows, ProcessRows, BrowserItemRows, BrowserSettingRows, StartupRows, InstalledRows,
          OptionsRows, UtilitiesRows, LaunchRows, ReportRows}) {
        Append(all, rows());
    }
    return all;
}

std::span<const char* const> CommandsThatChangeNothing() {
    return Nothing;
}

}  // namespace velkarix
