// The full report of a small machine, part by part.
#pragma once

#include <string>

namespace velkarix {

// What the report begins with.
std::string ReportHeader();
// What it says of an area on that machine, headings included.
std::string ProcessArea();
std::string BrowserArea();
std::string StartupArea();
std::string InstalledArea();
// The header and all areas.
std::string WholeReport();
// The settings at the end of the browser's area, with `firstZone` as the rows of the first zone.
std::string BrowserSettings(const std::string& firstZone);
// The rows of the first zone on that machine.
std::string FirstZone();
// What all areas say where there is nothing in any list; and the zones where there are no settings
// of them: each setting is taken for enabled.
std::string EmptyAreas();

}  // namespace velkarix
