// What the program may change, start and end, and for what command: each a row of a table with its
// reason. Whatever else a command does is wrong, and so is a row that no command needs.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "tests/safety/EveryCommand.h"

namespace velkarix {

// Where the reports of the tests go.
inline constexpr const char* SafetyReport = "C:\\Reports\\Report.txt";

class SafetyRules {
  public:
    // What a command did that no row allows, a text for each call. A call that isn't known to
    // change nothing is one that changes something.
    std::vector<std::string> Complaints(const GivenCommand& command);

    // The rows that allowed nothing yet, as text.
    std::vector<std::string> UnusedRows() const;

  private:
    bool MayChange(const GivenCommand& command, const std::string& place);
    bool MayDo(const GivenCommand& command, const Call& call);

    std::vector<bool> changesUsed_;
    std::vector<bool> deedsUsed_;
};

}  // namespace velkarix
