// The browser's security zones.
#pragma once

#include <string>
#include <vector>

namespace velkarix {

// By the zones' numbers, from 0.
std::vector<std::string> SecurityZoneNames();

// The name of the zone of this number; "Unknown" for any other.
std::string SecurityZoneName(double number);

}  // namespace velkarix
