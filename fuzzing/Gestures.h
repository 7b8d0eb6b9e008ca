// A user who does anything to a form: every control takes the gestures of its kind.
#pragma once

#include "forms/Form.h"
#include "fuzzing/FuzzTarget.h"

namespace velkarix {

// One gesture on one of the form's controls, if that is enabled: a byte says which control, another
// which of its gestures, the third which of the gesture's ways. A list has one more, its first: all
// rows are ticked. What is done may destroy the form.
void MakeGesture(FuzzInput& input, Form& form);

}  // namespace velkarix
