// Where the controls of a form stand in its window, and what they stand on.
#pragma once

#include <map>
#include <vector>

#include "forms/Form.h"
#include "forms/win32/Metrics.h"
#include "forms/win32/Palette.h"

namespace velkarix {

// The least inside of a window that shows all that is on view now.
Size LeastInside(const Form& form, Metrics& metrics);
// The places of all controls of a form that has that place in its window.
std::vector<Placement> ArrangeForm(const Form& form, const Rect& inside, Metrics& metrics);

// The ground of each control of a layout.
std::map<const Control*, Shade> GroundsOf(const Layout& layout);

}  // namespace velkarix
