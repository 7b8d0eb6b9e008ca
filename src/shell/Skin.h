// The look of the program's own drawing, asked for by the names of its elements. Nothing but the
// drawing depends on it.
#pragma once

#include <string>

#include "forms/Form.h"

namespace velkarix {

// Gives a window the program's frame.
void SkinWindow(Form& form);
// Gives a control the look of a named element ("Process", "button").
void SkinControl(Control& control, const std::string& element);

}  // namespace velkarix
