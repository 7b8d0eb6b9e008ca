// The look of the program's own drawing, asked for by the names of its elements. Nothing but the
// drawing depends on it.
#pragma once

#include <string>

#include "forms/Form.h"

namespace velkarix {

// Gives a window the look of a named element ("window", "free").
void SkinWindow(Form& form, const std::string& element);
// Gives a control the look of a named element ("Process", "button").
void SkinControl(Control& control, const std::string& element);

}  // namespace velkarix
