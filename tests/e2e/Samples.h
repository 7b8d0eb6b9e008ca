// What the lists and reports of the program say of the files of the sample machine.
#pragma once

#include <string>

#include "ListWindow.h"

namespace velkarix::e2e {

// As the lists show them: size, date, company, product and description; five empty texts when there
// is no such file.
RowTexts ShownFacts(const std::string& path);

// The twelve version facts in the order of the reports; empty texts for a file without them.
RowTexts VersionFacts(const std::string& path);

// The same of any file: of one that isn't a sample, as the system tells them.
RowTexts FileVersionFacts(const std::string& path);

// The row of a running program in the list of processes.
RowTexts ListedRow(const std::string& path);
// A folder as that list tells it.
std::string ListedFolder(const std::string& folder);

// The full path of the program that is found along the search path.
std::string SearchedSamplePath();

// The full path of the library that lies in the system's folder.
std::string SystemSamplePath();

}  // namespace velkarix::e2e
