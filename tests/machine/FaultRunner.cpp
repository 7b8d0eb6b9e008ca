#include "tests/machine/FaultRunner.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <numeric>

#include "tests/machine/MachineText.h"

namespace velkarix {
namespace {

constexpr int MostComplaints = 3;

// The sanitizers look for other things than losses, and take their time: every so manieth call
// does.
#ifdef __SANITIZE_ADDRESS__
constexpr std::size_t Stride = 11;
#else
constexpr std::size_t Stride = 1;
#endif

// Up to the last one that may change something: what a page reads behind it, to show what is there
// now, can't change that any more.
std::vector<std::size_t> UpToTheLastChange(const std::vector<Call>& calls) {
    const auto last = std::find_if(calls.rbegin(), calls.rend(), Changes);
    std::vector<std::size_t> numbers(static_cast<std::size_t>(calls.rend() - last));
    std::iota(numbers.begin(), numbers.end(), 0);
    return numbers;
}

// A file that is only read takes no room.
bool CanHappenAt(const Trouble& trouble, const Call& call) {
    return call.name != "CreateFileA" || call.forWriting || trouble.error != error::DiskFull;
}

}  // namespace

void FaultRunner::Run(const std::string& command, const FaultScene& scene) {
    seen_.clear();
    complaints_ = 0;
    if (counts_.empty() || counts_.back().command != command) counts_.push_back({command});
    const std::vector<Call> calls = RunCase(scene, {}, {SIZE_MAX});
    counts_.back().calls += calls.size();
    const std::vector<std::size_t> picked =
        scene.pick ? scene.pick(calls) : UpToTheLastChange(calls);
    EXPECT_FALSE(picked.empty()) << command << ", " << scene.name << ", changes nothing";
    for (std::size_t i = 0; i < picked.size(); i += Stride) {
        const std::size_t number = picked[i];
        const Place place{number, calls.at(number)};
        for (const Trouble& trouble : KindOf(place.call).troubles) {
            if (CanHappenAt(trouble, place.call)) RunCase(scene, trouble, place);
        }
        // A call that fails changes nothing: what is left by these is what the calls before have
        // made, and behind one that only looked that was seen already.
        if (i != 0 && number != 0 && !Changes(calls[number - 1])) continue;
        RunCase(scene, {TroubleKind::FailsFromThere}, place);
        RunCase(scene, {TroubleKind::Ends}, place);
    }
    counts_.back().states += seen_.size();
}

std::vector<Call> FaultRunner::GiveIn(const FaultScene& scene, const Trouble& trouble,
                                      const Place& place, MemoryMachine& machine) {
    scene.prepare(machine);
    CallJournal& journal = machine.Journal();
    std::vector<Call> calls;
    {
        RunningProgram program(machine);
        scene.open(program);
        journal.Clear();
        Arrange(machine, trouble, place.number, place.call);
        try {
            scene.give(program);
        } catch (const ProcessEnded&) {
        }
        calls = journal.Calls();
        EndTrouble(machine);
        // A process that ended does nothing more; nor has any other one something to do.
        journal.FailCall(0, error::AccessDenied, true);
    }
    EndTrouble(machine);
    return calls;
}

std::vector<Call> FaultRunner::RunCase(const FaultScene& scene, const Trouble& trouble,
                                       const Place& place) {
    MemoryMachine machine;
    const std::vector<Call> calls = GiveIn(scene, trouble, place, machine);
    Counts& counts = counts_.back();
    ++counts.cases;
    const std::string& wrong = Examine(scene, machine);
    if (wrong.empty() || (trouble.kind == TroubleKind::Gone && IsLostByAnother(scene, place))) {
        return calls;
    }
    ++counts.failed;
    if (++complaints_ <= MostComplaints) {
        ADD_FAILURE() << counts.command << ", " << scene.name << ", " << velkarix::Describe(trouble)
                      << " at call " << place.number << ", " << place.call.name << " "
                      << place.call.arguments << ":\n"
                      << wrong;
    }
    return calls;
}

// Whether it was lost already, by nobody else, when the command went on.
bool FaultRunner::IsLostByAnother(const FaultScene& scene, const Place& place) {
    MemoryMachine machine;
    GiveIn(scene, {TroubleKind::GoneAndEnds}, place, machine);
    return !Examine(scene, machine).empty();
}

const std::string& FaultRunner::Examine(const FaultScene& scene, MemoryMachine& machine) {
    const auto [seen, isNew] = seen_.try_emplace(MachineText(machine));
    if (isNew) seen->second = scene.examine(machine);
    return seen->second;
}

void FaultRunner::PrintCounts() const {
    Counts sums{std::to_string(counts_.size()) + " commands"};
    const auto print = [](const Counts& counts) {
        std::printf("%-50s %6zu calls %7zu states %8zu passed, %zu failed\n",
                    counts.command.c_str(), counts.calls, counts.states,
                    counts.cases - counts.failed, counts.failed);
    };
    for (const Counts& counts : counts_) {
        print(counts);
        sums.calls += counts.calls;
        sums.cases += counts.cases;
        sums.failed += counts.failed;
        sums.states += counts.states;
    }
    print(sums);
}

}  // namespace velkarix
