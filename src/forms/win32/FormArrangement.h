// Where the controls of a form stand in its window, and what they stand on.
#pragma once

#include <map>
#include <vector>

#include "forms/Form.h"
#include "forms/win32/Metrics.h"
#include "forms/win32/Palette.h"

namespace velkarix {

// The places of all controls in a window whose inside has that size.
std::vector<Placement> ArrangeForm(const Form& form, const Size& inside, Metrics& metrics);

// The ground of each control of a layout.
std::map<const Control*, Shade> GroundsOf(const Layout& layout);

}  // namespace velkarix
