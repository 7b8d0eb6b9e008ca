// The library of the system's own dialogs.
#pragma once

#include "platform/win32/SystemLibrary.h"

namespace velkarix {

inline constinit SystemLibrary CommonDialogs{"comdlg32.dll"};

}  // namespace velkarix
