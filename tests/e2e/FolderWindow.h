// The window in which the system shows a folder.
#pragma once

#include <string>

namespace velkarix::e2e {

// Waits for a window that shows the folder of that name, and closes it. False when none comes.
bool FolderIsShown(const std::string& name);

}  // namespace velkarix::e2e
