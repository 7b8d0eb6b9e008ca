// What a user can do with a control, told by its kind alone: whoever tries out what the program
// does asks here, and never for the kinds himself.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "forms/Control.h"
#include "forms/ListView.h"

namespace velkarix {

// What one event of a control comes from.
struct ControlGesture {
    // To be made on the control, or on the same one in another run of the program. A disabled
    // control does it as well: whether a user could is for the caller to ask. False when there is
    // no handler though the kind is made to have one. It may destroy the form.
    using Way = std::function<bool(Control&)>;

    std::string event;  // as in the names of handlers: "Click", "ItemCheck"
    // One for each entry, row or column, in their order: none where there are none now.
    std::vector<Way> ways;
};

// What is typed into a box that holds `value`; asked for when the gesture is made.
using Typing = std::function<std::string(const std::string& value)>;

// None for what only shows something.
std::vector<ControlGesture> GesturesOf(Control& control, const Typing& type);

// Ticks the boxes of all rows, where the list has boxes.
void TickAllRows(ListView& list);

}  // namespace velkarix
