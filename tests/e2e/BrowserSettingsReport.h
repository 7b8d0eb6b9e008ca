// What the full report says of the browser's addresses and settings on the sample machine.
#pragma once

#include <string>

namespace velkarix::e2e {

// The lines of the ten addresses.
std::string AddressLines();

// Proxy, protocol defaults and security zones, with their headings.
std::string BrowserSettingsLines();

}  // namespace velkarix::e2e
