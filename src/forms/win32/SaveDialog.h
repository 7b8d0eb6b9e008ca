// The system's dialog that asks where to save a file.
#pragma once

#include <optional>
#include <string>

#include "forms/Desktop.h"
#include "forms/win32/WindowsHeaders.h"

namespace velkarix {

// `owner` is disabled meanwhile. Gives the full path of the file, or nothing on cancel.
std::optional<std::string> AskSavePath(HWND owner, const SaveRequest& request);

}  // namespace velkarix
