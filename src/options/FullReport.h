// The full report: one text file with the reports of all lists of the areas that the user chose. It
// takes a while, and events are served meanwhile, so that it outlives the page that began it.
#pragma once

#include <string>
#include <vector>

#include "options/FullReportAreas.h"
#include "shell/Application.h"

namespace velkarix {

class FullReport {
  public:
    explicit FullReport(Application& application) : application_(application) {}

    // True from the command to its end; another one does nothing then.
    bool Runs() const { return runs_; }

    // The whole command, given on the form `owner`, which may be gone when it comes back: asks for
    // the file, writes the areas that are `chosen` (one for each of FullReportAreas) and opens the
    // file. What a list's writer can't write, it tells the user, and the rest goes on; headings and
    // settings that can't be written are left out in silence. Ends early with the program.
    void Run(Form& owner, const std::vector<bool>& chosen);

  private:
    class Running;

    // False when the program is about to end.
    bool Write(const std::vector<bool>& chosen, const std::string& fileName);
    bool WriteArea(const FullReportArea& area, const std::string& fileName, Progress::Work& work);
    void PrintLine(const std::string& fileName, const std::string& text);

    Application& application_;
    bool runs_ = false;
};

}  // namespace velkarix
