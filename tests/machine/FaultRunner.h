// Gives a command that changes something once for each call that it makes to the machine, each time
// with that call in trouble, and has what is left looked at. What may go wrong at a call is told by
// its kind: see CallKinds.h.
//
//   FaultRunner runner;
//   runner.Run("Disable", {"on a full disk", PutItems, OpenPage, ClickDisable, FindLoss});
//   runner.PrintCounts();
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

#include "tests/machine/CallKinds.h"
#include "tests/machine/TestProgram.h"

namespace velkarix {

// In what circumstances a command is given.
struct FaultScene {
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
    // Gives the command with each call in each trouble of its kind; with all calls from one on
    // failing, and with the process ending there, at each call behind one that may have changed
    // something. Machines that are left alike are examined once. What is wrong fails the test, with
    // a few messages at most. A command that works on much is better given several times, on a part
    // of it each: what one call in trouble costs is a whole run of the command.
    void Run(const std::string& command, const FaultScene& scene);

    // One line for each command, and the sums.
    void PrintCounts() const;

  private:
    struct Counts {
        std::string command;
        std::size_t calls = 0;   // that the command makes by itself
        std::size_t cases = 0;   // runs: one without trouble, the others with a call in trouble
        std::size_t failed = 0;  // of the cases
        std::size_t states = 0;  // different machines left by all runs
    };
    // The call that is in trouble.
    struct Place {
        std::size_t number = 0;
        Call call = {};
    };

    // Both give the command; the second examines what is left and counts. What the command's calls
    // were comes back.
    std::vector<Call> GiveIn(const FaultScene& scene, const Trouble& trouble, const Place& place,
                             MemoryMachine& machine);
    std::vector<Call> RunCase(const FaultScene& scene, const Trouble& trouble, const Place& place);
    bool IsLostByAnother(const FaultScene& scene, const Place& place);
    // What is wrong with the machine; from memory where one that was left alike was examined.
    const std::string& Examine(const FaultScene& scene, MemoryMachine& machine);

    std::vector<Counts> counts_;
    // Of the scene that runs: what was wrong with the machines so far, and how often something was.
    std::unordered_map<std::string, std::string> seen_;
    int complaints_ = 0;
};

}  // namespace velkarix
