// What tests of the full report begin with: the options page on view, and a way to have the report
// made.
#pragma once

#include <string>
#include <vector>

#include "StartupTest.h"

namespace velkarix::e2e {

inline constexpr const char* FullReportBoxes[] = {"chkProcess", "chkIE", "chkStartup",
                                                  "chkAddremove"};

// With the startup items that the system takes away when it starts.
class FullReportTest : public StartupTest {
  protected:
    // Enters the options page and ticks these boxes, or all.
    void ChooseAreas(const std::vector<std::string>& boxes);
    void ChooseAreas() { ChooseAreas({std::begin(FullReportBoxes), std::end(FullReportBoxes)}); }
    // The same in a program that is started for it.
    void OpenOptions(const std::vector<std::string>& boxes);
    void OpenOptions() { OpenOptions({std::begin(FullReportBoxes), std::end(FullReportBoxes)}); }
    // Has the report saved as `name` in the installation's folder, and comes back as soon as it is
    // being made.
    void Begin(const std::string& name = "Mine.txt");
    // The same, and waits until the viewer was asked to show it. The report.
    std::string Make(const std::string& name = "Mine.txt");
};

}  // namespace velkarix::e2e
