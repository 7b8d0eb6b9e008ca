// The table of all commands that change something, and the list of those that don't.
#pragma once

#include <functional>
#include <span>
#include <string>
#include <vector>

#include "tests/machine/FaultRunner.h"

namespace velkarix {

struct FaultRow {
    std::string command;  // as CommandList names it
    // A scene without a `give` has the command given by its user, see GiveCommand.
    std::function<std::vector<FaultScene>()> scenes;
};

// The rows of each page, and of what stands around the pages.
std::vector<FaultRow> FrameRows();
std::vector<FaultRow> ProcessRows();
std::vector<FaultRow> BrowserItemRows();
std::vector<FaultRow> BrowserSettingRows();
std::vector<FaultRow> StartupRows();
std::vector<FaultRow> InstalledRows();
std::vector<FaultRow> OptionsRows();
std::vector<FaultRow> UtilitiesRows();
// Of all pages: what only starts or opens something, and what only writes a report.
std::vector<FaultRow> LaunchRows();
std::vector<FaultRow> ReportRows();

std::vector<FaultRow> AllFaultRows();

// Patterns, with * and ?, of the names of commands.
std::span<const char* const> CommandsThatChangeNothing();

}  // namespace velkarix
