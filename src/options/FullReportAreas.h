// What the full report can tell of: an area for each of the pages with lists, in the order of the
// report, and what is written of it.
#pragma once

#include <span>
#include <string>

#include "forms/Form.h"
#include "shell/Application.h"

namespace velkarix {

// A part of an area, with a list's own report.
struct FullReportBlock {
    const char* lines[4];  // that stand before it; null ends them
    // Appends it to the report, as the loaded page shows it.
    void (*write)(Application& application, Form& page, const std::string& fileName);
};

struct FullReportArea {
    const char* box;  // the name of the check box that chooses it
    const char* caption;
    const char* page;
    std::span<const FullReportBlock> blocks;
};

std::span<const FullReportArea> FullReportAreas();

}  // namespace velkarix
