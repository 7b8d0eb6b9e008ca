// Scenes of commands whose every change is whole or not made: whatever goes wrong, each place of
// the machine holds what was there before or what a run without trouble leaves there.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "tests/machine/FaultRunner.h"

namespace velkarix {

struct PlainScene {
    std::string command;
    std::string name = "";
    // Without it: PutFullMachine.
    std::function<void(MemoryMachine&)> prepare = {};
    // Once the page is loaded; without it: SelectForCommand.
    std::function<void(RunningProgram&)> open = {};
    // Places, by what their names begin with (see FlatMachine), that may hold anything.
    std::vector<std::string> loose = {};
    // What else may be wrong with the machine that is left; an empty text is all well.
    std::function<std::string(MemoryMachine&)> check = {};
    // Takes the command back, whether it was done, or done in part, by the program's own means. All
    // places but the loose ones and those of `overwritten` are to be as before the command then.
    std::function<void(MemoryMachine&)> undo = {};
    // Places, by what their names begin with, that the command is there to overwrite: nobody is
    // shown what was in them, and nothing brings it back.
    std::vector<std::string> overwritten = {};
};

FaultScene SceneOf(const PlainScene& plain);

// Something in every list, everything that the program looks for beside itself, all settings.
void PutFullMachine(MemoryMachine& machine);
// Ticks all rows of the command's form and selects those that its control works for; the user will
// say yes, and where files are to be written.
void SelectForCommand(RunningProgram& program, const std::string& command);

inline constexpr const char* SavedFile = "C:\\Saved.txt";

}  // namespace velkarix
