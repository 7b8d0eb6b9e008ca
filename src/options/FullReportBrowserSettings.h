// The part of the full report about settings of the browser that have no report of their own.
#pragma once

#include <string>

#include "browser/frmIE.h"
#include "shell/Application.h"

namespace velkarix {

// Appends proxy, protocol defaults and security zones to a report, the first zone as the page shows
// it. Loads the four other zones into the page's list and leaves the last one there. A failure ends
// it without a word; what was written stays.
void PrintBrowserSettings(Application& application, frmIE& page, const std::string& fileName);

}  // namespace velkarix
