// All commands of the program, asked of the program itself: what each control, menu entry, key,
// timer, load and unload of each form can set going. A command is named for its form and handler:
// "frmIE.cmdDisableBHO_Click".
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "tests/machine/TestProgram.h"

namespace velkarix {

// On a machine where each list has rows. Those of controls first, form by form, without doubles.
std::vector<std::string> AllCommands(MemoryMachine& machine);

// What a menu entry or a key runs, with words that tell where it stands. A handler that its form
// doesn't have is named all the same.
struct CommandRoad {
    std::string from;
    std::string command;
};
std::vector<CommandRoad> AllRoads(MemoryMachine& machine);

// The command's form and handler.
std::pair<std::string, std::string> SplitCommand(const std::string& command);

// Has the program load the form as its user would: in the main window, or as a dialog above it.
void OpenForm(RunningProgram& program, const std::string& form);
// The user gives the command, in each way that the control offers: each row of a list, each entry
// of a box. Its form is loaded, but for a load. A button that is disabled fails the test.
void GiveCommand(RunningProgram& program, const std::string& command);

}  // namespace velkarix
