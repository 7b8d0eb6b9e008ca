// Gives a command that changes something once for each call that it makes to the machine, each time
// with that call in trouble, and has what is left looked at. Commands are rows of a table:
//
//   FaultRunner runner;
//   runner.Run({"Disable", PutItems, OpenPage, ClickDisable, FindLoss});
//   runner.PrintCounts();
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <unordered_set>
#include <utility>
#include <vector>

#include "tests/machine/TestProgram.h"

namespace velkarix {

struct FaultCommand {
    std::string name;
    // What is on the machine before the program starts.
    std::function<void(MemoryMachine&)> prepare;
    // Brings the program to where the command can be given; nothing is in trouble meanwhile.
    std::function<void(RunningProgram&)> open;
    std::function<void(RunningProgram&)> give;
    // Gets the machine as the command left it, with nothing in trouble any more, and says what is
    // wrong there; an empty text is all well. May change the machine and start the program on it.
    std::function<std::string(MemoryMachine&)> examine;
    // Picks the calls that are put in trouble, by their numbers, out of those that the command
    // makes by itself; without it, all of them up to the last that may change something.
    std::function<std::vector<std::size_t>(const std::vector<Call>&)> pick = {};
};

class FaultRunner {
  public:
    // Gives the command with each call failing alone; with all calls from one on failing, and with
    // the process ending there, at each call behind one that may have changed something. Machines
    // that are left alike are examined once. What is wrong fails the test, with a few messages at
    // most. A command that works on much is better given several times, on a part of it each: what
    // one call in trouble costs is a whole run of the command.
    void Run(const FaultCommand& command);

    // One line for each name of a command, and the sums.
    void PrintCounts() const;

  private:
    enum class Trouble { None, OneCall, AllFromThere, End };
    struct Counts {
        std::string command;
        std::size_t calls = 0;   // that the command makes by itself
        std::size_t cases = 0;   // runs with one of them in trouble
        std::size_t states = 0;  // different machines left by all runs
    };

    // Gives the calls that the command made.
    std::vector<Call> RunCase(const FaultCommand& command, Trouble trouble, std::size_t call);
    void Examine(const FaultCommand& command, MemoryMachine& machine, const std::string& what);

    std::vector<Counts> counts_;
    // Of the command that runs: the machines seen so far, and how often something was wrong.
    std::unordered_set<std::string> states_;
    int complaints_ = 0;
};

}  // namespace velkarix
