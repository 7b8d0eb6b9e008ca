// What a user can do with the controls of a form, found out from the form itself.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "tests/machine/TestProgram.h"

namespace velkarix {

// A gesture on one control, to be made in any run of the program that stands where this one did.
struct Gesture {
    std::string form;
    std::string control;
    std::string event;  // "Click", "DblClick", "mnuKill" for an entry of its menu
    std::function<void(RunningProgram&, Form&)> make;
};

// Those of all controls that are on view, whether enabled or not, and of the form's keys and
// timers. Lists are asked for their menus: each must have a row selected by then.
std::vector<Gesture> GesturesOn(RunningProgram& program, Form& form);

// What brings other controls of the form on view: strips of buttons and tabs.
std::vector<Gesture> OpenersOn(Form& form);

// The names of all controls, on view or not, that a user can do something with.
std::vector<std::string> WorkingControls(Form& form);

// Makes the form ready for its commands, as far as what is on view goes: all boxes of rows are
// ticked and the row of that number is selected in each list, texts are typed, the first choice is
// taken, and check boxes are ticked where `ticked` says so, else cleared. Gives the number of rows
// of the longest list.
std::size_t PrepareForm(Form& form, std::size_t row, bool ticked);

}  // namespace velkarix
