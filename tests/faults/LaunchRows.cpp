// What only starts or opens something: nothing on the machine may change by it.
#include "tests/faults/FaultTable.h"
#include "tests/faults/PlainScenes.h"

namespace velkarix {
namespace {

constexpr const char* Launches[] = {
    "frmMain.lblHelp_Click",

    "frmProcess.lstvProcess_DblClick",
    "frmProcess.cmdOpen_Click",

    "frmIE.lstvBHO_DblClick",
    "frmIE.lstvToolbar_DblClick",
    "frmIE.lstvButtons_DblClick",
    "frmIE.lstvProtocol_DblClick",
    "frmIE.lstvHook_DblClick",
    "frmIE.cmdFolderBHO_Click",
    "frmIE.cmdFolderToolbar_Click",
    "frmIE.cmdFolderButton_Click",
    "frmIE.cmdFolderMenu_Click",
    "frmIE.cmdProtocolFolder_Click",
    "frmIE.cmdHookFolder_Click",

    "frmStartup.cmdFolder_Click",

    "frmAddRemove.lstvAddRemove_DblClick",
    "frmAddRemove.cmdUninstall_Click",

    "frmUtilities.cmdHosts_Click",
    "frmUtilities.cmdRepairLSP_Click",
};

}  // namespace

std::vector<FaultRow> LaunchRows() {
    std::vector<FaultRow> rows;
    for (const char* command : Launches) {
        rows.push_back({command, [command] { return std::vector{SceneOf({command})}; }});
    }
    return rows;
}

}  // namespace velkarix
