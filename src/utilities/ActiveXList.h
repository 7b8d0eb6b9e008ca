// The list of malicious ActiveX controls, and the keys where the browser looks up what it is to
// think of each.
#pragma once

#include <functional>
#include <string>

#include "platform/FileSystem.h"

namespace velkarix {

// In HKEY_LOCAL_MACHINE; ends in a backslash. Each control's key is named by its class identifier.
inline constexpr const char* CompatibilityKeys =
    "SOFTWARE\\Microsoft\\Internet Explorer\\ActiveX Compatibility\\";

// Gives `work` the key of each control on the list file, in the order of its lines; of a line that
// would lead to no key below CompatibilityKeys it says nothing. A file that isn't there lists no
// control. Of one that can't be read to its end the whole lines up to there are worked on; the code
// of what failed comes back, else Success.
ErrorCode ForEachListedKey(FileSystem& files, const std::string& listFile,
                           const std::function<void(const std::string& key)>& work);

}  // namespace velkarix
