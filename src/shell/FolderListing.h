// The files of a folder, for a list: a folder that can't be read is told from an empty one.
#pragma once

#include <string>
#include <vector>

#include "shell/Application.h"

namespace velkarix {

// The names, without the folder, of the files that fit `pattern`, hidden ones too. None of a folder
// that isn't there; of one that is and can't be read UnreadPlaces hears.
std::vector<std::string> ListFolder(Application& application, const std::string& folder,
                                    const std::string& pattern);

}  // namespace velkarix
