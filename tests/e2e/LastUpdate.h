// When the definitions of an installation were last updated, as its files tell it.
#pragma once

#include <string>

#include "Install.h"

namespace velkarix::e2e {

// The day so many days ago, as the system writes dates.
std::string DaysAgo(int days);
inline std::string Today() {
    return DaysAgo(0);
}

// Definitions of the version 7.5 that were updated on that day.
void SetLastUpdate(const Install& install, const std::string& date);

}  // namespace velkarix::e2e
