// What tests of the full report begin with: the options page on view, and a way to have the report
// made.
#pragma once

#include <string>
#include <vector>

#include "ProgramTest.h"

namespace velkarix::e2e {

inline constexpr const char* FullReportBoxes[] = {"chkProcess", "chkIE", "chkStartup",
                                                  "chkAddremove"};

class FullReportTest : public ProgramTest {
  protected:
    // Starts the program and ticks these boxes of the options page.
    void OpenOptions(const std::vector<std::string>& boxes);
    void OpenOptions() { OpenOptions({std::begin(FullReportBoxes), std::end(FullReportBoxes)}); }
    // Has the report saved as `name` in the installation's folder, and comes back as soon as it is
    // being made.
    void Begin(const std::string& name = "Mine.txt");
    // The same, and waits until the viewer was asked to show it. The report.
    std::string Make(const std::string& name = "Mine.txt");
};

}  // namespace velkarix::e2e
