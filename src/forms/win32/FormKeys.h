// The keys that mean something to a form as a whole: its accelerators, Enter, Esc, Tab.
#pragma once

#include "forms/win32/FormWindows.h"

namespace velkarix {

// Gives a message to the form that it belongs to. True when the form has used it up.
bool ServeFormKeys(const FormWindows& forms, MSG& message);

}  // namespace velkarix
