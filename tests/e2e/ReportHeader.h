// The header that all reports begin with, as it must be on this machine.
#pragma once

#include <string>
#include <vector>

namespace velkarix::e2e {

// The moment, by the local clock, as the header has it.
std::string MomentNow();

// Compares a header's lines with those of the report of that title that was made between two
// moments. A failure of the test for each that differs.
void ExpectHeader(const std::vector<std::string>& lines, const std::string& title,
                  const std::string& notBefore, const std::string& notAfter);

}  // namespace velkarix::e2e
