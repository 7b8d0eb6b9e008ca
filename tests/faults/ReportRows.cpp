// What only writes a report: nothing but its file may change by it.
#include "tests/faults/FaultTable.h"
#include "tests/faults/PlainScenes.h"

namespace velkarix {
namespace {

constexpr const char* Reports[] = {
    "frmProcess.cmdReport_Click",   "frmIE.cmdReportBHO_Click",  "frmIE.cmdreportToolbar_Click",
    "frmIE.cmdReportButton_Click",  "frmIE.cmdReportMenu_Click", "frmIE.cmdProtocolReport_Click",
    "frmIE.cmdDomainReport_Click",  "frmIE.cmdHookReport_Click", "frmStartup.cmdReport_Click",
    "frmAddRemove.cmdReport_Click",
};

FaultScene ReportScene(const char* command, bool another) {
    PlainScene scene{command, another ? "over a file" : "a new file"};
    scene.prepare = [another](MemoryMachine& machine) {
        PutFullMachine(machine);
        if (another) machine.AddFile(SavedFile).Content("to be replaced");
    };
    scene.loose = {SavedFile};
    return SceneOf(scene);
}

}  // namespace

std::vector<FaultRow> ReportRows() {
    std::vector<FaultRow> rows;
    for (const char* command : Reports) {
        rows.push_back(
            {command, [command] {
                 return std::vector{ReportScene(command, false), ReportScene(command, true)};
             }});
    }
    return rows;
}

}  // namespace velkarix
