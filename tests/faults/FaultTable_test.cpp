// Nothing is ever lost, whatever goes wrong, whichever command is given: the table of commands is
// compared with the program, and each of its rows is run with trouble at each call.
#include "tests/faults/FaultTable.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>

#include "tests/faults/CommandList.h"
#include "tests/faults/PlainScenes.h"
#include "tests/machine/Wildcard.h"

namespace velkarix {
namespace {

using Names = std::vector<std::string>;

Names ProgramCommands() {
    MemoryMachine machine;
    PutFullMachine(machine);
    return AllCommands(machine);
}

bool ChangesNothing(const std::string& command) {
    const auto patterns = CommandsThatChangeNothing();
    return std::any_of(patterns.begin(), patterns.end(),
                       [&](const char* pattern) { return FitsPattern(command, pattern); });
}

bool IsIn(const Names& names, const std::string& name) {
    return std::find(names.begin(), names.end(), name) != names.end();
}

Names CommandsOfTheTable() {
    Names commands;
    for (const FaultRow& row : AllFaultRows()) commands.push_back(row.command);
    return commands;
}

TEST(FaultTable, HoldsEachCommandOfTheProgramThatChangesSomething) {
    const Names table = CommandsOfTheTable();
    for (const std::string& command : ProgramCommands()) {
        EXPECT_NE(IsIn(table, command), ChangesNothing(command))
            << command << " stands in both or in neither";
    }
}

TEST(FaultTable, HoldsNoCommandThatTheProgramHasNot) {
    const Names commands = ProgramCommands();
    Names table = CommandsOfTheTable();
    for (const std::string& command : table) EXPECT_TRUE(IsIn(commands, command)) << command;
    std::sort(table.begin(), table.end());
    EXPECT_EQ(std::adjacent_find(table.begin(), table.end()), table.end());
    for (const char* pattern : CommandsThatChangeNothing()) {
        EXPECT_TRUE(std::any_of(commands.begin(), commands.end(), [&](const std::string& each) {
            return FitsPattern(each, pattern);
        })) << pattern;
    }
}

// So what a menu or a key does is in the table as well.
TEST(FaultTable, HoldsWhatEachMenuEntryAndKeyRuns) {
    MemoryMachine machine;
    PutFullMachine(machine);
    const Names commands = ProgramCommands();
    for (const CommandRoad& road : AllRoads(machine)) {
        EXPECT_TRUE(IsIn(commands, road.command)) << road.from << " runs " << road.command;
    }
}

TEST(FaultTable, LeavesOutOnlyWhatMakesNoChangingCall) {
    for (const std::string& command : ProgramCommands()) {
        if (!ChangesNothing(command)) continue;
        SCOPED_TRACE(command);
        MemoryMachine machine;
        PutFullMachine(machine);
        RunningProgram program(machine);
        const auto [form, handler] = SplitCommand(command);
        program.Start();
        if (handler != "Form_Load") OpenForm(program, form);
        SelectForCommand(program, command);
        machine.Journal().Clear();
        GiveCommand(program, command);
        for (const Call& call : machine.Journal().Calls()) {
            EXPECT_FALSE(Changes(call)) << call.name << " " << call.arguments;
        }
    }
}

class EachCommand : public testing::TestWithParam<FaultRow> {
  protected:
    static void TearDownTestSuite() { runner.PrintCounts(); }
    static inline FaultRunner runner;
};

TEST_P(EachCommand, LosesNothing) {
    for (const FaultScene& scene : GetParam().scenes()) runner.Run(GetParam().command, scene);
}

INSTANTIATE_TEST_SUITE_P(OfTheTable, EachCommand, testing::ValuesIn(AllFaultRows()),
                         [](const auto& test) {
                             std::string name = test.param.command;
                             std::erase_if(name,
                                           [](unsigned char c) { return std::isalnum(c) == 0; });
                             return name;
                         });

}  // namespace
}  // namespace velkarix
