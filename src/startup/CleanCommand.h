// From a command line, as a value of the registry holds it, to the path of the file that it runs.
#pragma once

#include <string>

#include "platform/Machine.h"

namespace velkarix {

// Without quotes, and without what stands behind the first ".exe" or, where there is none, the
// first ".dll". A name without a drive is looked for along the search path. With a drive letter the
// path begins there, so that of a library that is run through a loader the library is left. Where
// the extension stands before the drive there is nothing to take: the result is empty.
std::string CleanCommand(const Machine& machine, const std::string& command);

}  // namespace velkarix
