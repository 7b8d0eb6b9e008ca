// A user who does anything to a form: every control takes the gestures of its kind.
#pragma once

#include "forms/Form.h"
#include "fuzzing/FuzzTarget.h"

namespace velkarix {

// One gesture on one of the form's controls. What it does may destroy the form.
void MakeGesture(FuzzInput& input, Form& form);

}  // namespace velkarix
