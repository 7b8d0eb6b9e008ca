// A small machine with something in every list that the full report tells of, and the report of it,
// part by part.
#pragma once

#include <string>

#include "tests/machine/MemoryMachine.h"

namespace velkarix {

// What the machine's things and its report are made of.
void PutReportMachine(MemoryMachine& machine);

// What the report begins with.
std::string ReportHeader();
// What it says of an area on that machine, headings included.
std::string ProcessArea();
std::string BrowserArea();
std::string StartupArea();
std::string InstalledArea();
// The settings at the end of the browser's area, with `firstZone` as the rows of the first zone.
std::string BrowserSettings(const std::string& firstZone);
// The rows of the first zone on that machine.
std::string FirstZone();
// What all areas say where there is nothing in any list; and the zones where there are no settings
// of them: each setting is taken for enabled.
std::string EmptyAreas();

}  // namespace velkarix
