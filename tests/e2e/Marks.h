// How the program marks the rows of its lists.
#pragma once

#include <windows.h>

namespace velkarix::e2e {

enum class Mark { None, Suspicious, Disabled, SuspiciousAndDisabled };

// The colour of a marked row's texts, as the program comes.
COLORREF ColorOf(Mark mark);

}  // namespace velkarix::e2e
