// What brings back what the program has kept of the registry: the system's own editor.
#pragma once

#include <string>

namespace velkarix::e2e {

// Has the editor merge a registry file, as its user would by a double click. False when it can't.
bool MergeRegistryFile(const std::string& path);

}  // namespace velkarix::e2e
