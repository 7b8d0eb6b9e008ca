#include "InstalledBlocks.h"

#include "InstalledTest.h"
#include "Reports.h"

namespace velkarix::e2e {

std::vector<std::string> InstalledBlocks() {
    std::vector<std::string> blocks;
    for (const InstalledApplication& each : InstalledApplications()) {
        blocks.push_back("Program Name : " + each.name + (each.suspicious ? RiskMark : "") +
                         "\r\nCommand      : " + each.command + "\r\n");
    }
    return blocks;
}

}  // namespace velkarix::e2e
