// Gives every command that the program has, each in a run of its own, and tells what it called.
// Forms and controls are found as the program shows them: a new command is in it by itself.
#pragma once

#include <cstddef>
#include <functional>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "tests/safety/Gestures.h"

namespace velkarix {

// A command and what it did to the machine.
struct GivenCommand {
    std::string form;
    std::string control;  // empty: the program's own start and end
    std::string event;
    std::vector<Call> calls;
    std::vector<std::string> writtenFiles;  // the paths that were opened to be written

    std::string Name() const { return form + ", " + control + ", " + event; }
};

class EveryCommand {
  public:
    // Puts what is there on a machine before the program starts.
    using Prepare = std::function<void(MemoryMachine&)>;
    using Listener = std::function<void(const GivenCommand&)>;

    // All questions are answered with `answer`, and reports go to the file `report`.
    EveryCommand(Prepare prepare, MessageAnswer answer, std::string report, Listener listener);

    void Give();

    // How many commands were given, each for each row that could be selected.
    std::size_t Count() const { return count_; }
    // "form, control" of what a user can do something with and what never came on view.
    std::vector<std::string> NeverSeen() const;

  private:
    using Road = std::vector<Gesture>;  // from the start to a state of the program
    class Run;

    void StartAndEnd();
    void GiveAt(const Road& road);
    void NoteControls(Form& form, const std::vector<Gesture>& gestures);

    Prepare prepare_;
    MessageAnswer answer_;
    std::string report_;
    Listener listener_;
    std::size_t count_ = 0;
    std::set<std::string> working_;
    std::set<std::string> seen_;
};

}  // namespace velkarix
