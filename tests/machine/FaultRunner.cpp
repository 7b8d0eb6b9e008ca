#include "tests/machine/FaultRunner.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <iterator>
#include <numeric>
#include <string_view>

namespace velkarix {
namespace {

constexpr int MostComplaints = 3;

std::string TextOf(const MemoryEntry& entry) {
    std::string text = entry.name + "\n";
    text.append(entry.content.begin(), entry.content.end());
    for (std::size_t i = 0; const auto child = entry.children.At(i); ++i) text += TextOf(*child);
    return text + "\n";
}

// All that a program started later can see of an earlier one.
std::string TextOf(const MemoryMachine& machine) {
    const auto drive = machine.disk.Find("C:\\");
    return machine.registry.TreeText(Hive::LocalMachine, "") +
           machine.registry.TreeText(Hive::CurrentUser, "") + (drive ? TextOf(*drive) : "");
}

bool OnlyLooks(const Call& call) {
    constexpr std::string_view Beginnings[] = {"RegOpenKey", "RegCloseKey", "RegQuery",
                                               "RegEnum",    "ReadFile",    "Get",
                                               "Path",       "Find",        "CloseFile"};
    return std::any_of(std::begin(Beginnings), std::end(Beginnings),
                       [&](std::string_view text) { return call.name.starts_with(text); });
}

// Up to the last one that may change something: what a page reads behind it, to show what is there
// now, can't change that any more.
std::vector<std::size_t> UpToTheLastChange(const std::vector<Call>& calls) {
    const auto last = std::find_if_not(calls.rbegin(), calls.rend(), OnlyLooks);
    std::vector<std::size_t> numbers(static_cast<std::size_t>(calls.rend() - last));
    std::iota(numbers.begin(), numbers.end(), 0);
    return numbers;
}

}  // namespace

void FaultRunner::Run(const FaultCommand& command) {
    states_.clear();
    complaints_ = 0;
    if (counts_.empty() || counts_.back().command != command.name) {
        counts_.push_back({command.name});
    }
    const std::vector<Call> calls = RunCase(command, Trouble::None, 0);
    counts_.back().calls += calls.size();
    const std::vector<std::size_t> picked =
        command.pick ? command.pick(calls) : UpToTheLastChange(calls);
    EXPECT_FALSE(picked.empty()) << command.name << " changes nothing";
    for (const std::size_t call : picked) {
        RunCase(command, Trouble::OneCall, call);
        // A call that fails changes nothing: what is left by these is what the calls before have
        // made, and behind one that only looked that was seen already.
        if (call != 0 && call != picked.front() && OnlyLooks(calls[call - 1])) continue;
        RunCase(command, Trouble::AllFromThere, call);
        RunCase(command, Trouble::End, call);
    }
    counts_.back().states += states_.size();
}

std::vector<Call> FaultRunner::RunCase(const FaultCommand& command, Trouble trouble,
                                       std::size_t call) {
    if (trouble != Trouble::None) ++counts_.back().cases;
    MemoryMachine machine;
    command.prepare(machine);
    CallJournal& journal = machine.Journal();
    std::vector<Call> calls;
    {
        RunningProgram program(machine);
        command.open(program);
        journal.Clear();
        if (trouble == Trouble::OneCall || trouble == Trouble::AllFromThere) {
            journal.FailCall(call, error::AccessDenied, trouble == Trouble::AllFromThere);
        } else if (trouble == Trouble::End) {
            journal.EndAtCall(call);
        }
        try {
            command.give(program);
        } catch (const ProcessEnded&) {
        }
        calls = journal.Calls();
        journal.EndAtCall(SIZE_MAX);
        // A process that ended does nothing more; nor has any other one something to do.
        journal.FailCall(0, error::AccessDenied, true);
    }
    journal.FailCall(SIZE_MAX, error::Success);
    if (states_.insert(TextOf(machine)).second && complaints_ < MostComplaints) {
        constexpr const char* Words[] = {"nothing in trouble", "only this call failing",
                                         "all from this call on failing", "the process ending"};
        std::string what = Words[static_cast<int>(trouble)];
        if (trouble != Trouble::None) {
            what += " at call " + std::to_string(call);
            if (call < calls.size()) what += ", " + calls[call].name + " " + calls[call].arguments;
        }
        Examine(command, machine, what);
    }
    return calls;
}

void FaultRunner::Examine(const FaultCommand& command, MemoryMachine& machine,
                          const std::string& what) {
    const std::string wrong = command.examine(machine);
    if (wrong.empty()) return;
    ++complaints_;
    ADD_FAILURE() << command.name << ", " << what << ":\n" << wrong;
}

void FaultRunner::PrintCounts() const {
    Counts sums{std::to_string(counts_.size()) + " commands"};
    const auto print = [](const Counts& counts) {
        std::printf("%-40s %7zu calls %8zu cases %7zu states\n", counts.command.c_str(),
                    counts.calls, counts.cases, counts.states);
    };
    for (const Counts& counts : counts_) {
        print(counts);
        sums.calls += counts.calls;
        sums.cases += counts.cases;
        sums.states += counts.states;
    }
    print(sums);
}

}  // namespace velkarix
