// Nothing is ever lost, whatever goes wrong: every command of the browser page that changes
// something is given once for each of its calls, with that call in trouble.
#include "tests/browser/BrowserFaults.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <optional>
#include <string>

#include "tests/browser/FaultScenes.h"
#include "tests/browser/HardItems.h"

namespace velkarix {
namespace {

class BrowserFaults : public testing::Test {
  protected:
    void TearDown() override { runner_.PrintCounts(); }

    FaultRunner runner_;
};

TEST_F(BrowserFaults, LeaveEveryItemWholeWhenItIsMoved) {
    for (const ListCase* list : AllLists) {
        for (const Circumstances& on : AllCircumstances) {
            for (const ItemAction action : {ItemAction::Disable, ItemAction::Enable}) {
                if (list->values && !on.forValues) continue;
                if (action == ItemAction::Enable && !on.forEnable) continue;
                for (std::size_t group = 0; group < GroupsOf(*list); ++group) {
                    runner_.Run(CommandOf(Moving(*list, action, on, group), on.name));
                }
            }
        }
    }
}

// A copy that the system calls whole and that lacks something.
TEST_F(BrowserFaults, LeaveEveryItemWholeWhenTheCopyIsShort) {
    struct Lack {
        const char* what;
        void (*take)(MemoryHives& hives, Hive hive, const std::string& copy);
    };
    constexpr Lack Lacks[] = {
        {"short of a key",
         [](MemoryHives& hives, Hive hive, const std::string& copy) {
             hives.RemoveKey(hive, copy + "\\Empty");
         }},
        {"short of a byte",
         [](MemoryHives& hives, Hive hive, const std::string& copy) {
             hives.SetRaw(hive, copy + "\\www\\Deepest", "Large", registryType::Binary,
                          Bytes(4999, 'x'));
         }},
        {"of another type",
         [](MemoryHives& hives, Hive hive, const std::string& copy) {
             hives.SetRaw(hive, copy + "\\www\\Deepest", "Unknown", registryType::Binary,
                          {9, 8, 7, 6});
         }},
    };
    for (const ListCase* list : AllLists) {
        if (list->values) continue;
        for (const Lack& lack : Lacks) {
            BrowserFault fault = Moving(*list, ItemAction::Disable, AllCircumstances[0], 0);
            fault.prepare = [list, lack, whole = fault.prepare](MemoryMachine& machine) {
                machine.registry.afterCopy = [list, lack, &machine] {
                    for (const PlaceCase& place : list->places) {
                        const std::string copy =
                            place.held + std::string("\\") + ItemName(*list, 'A');
                        if (machine.registry.HasKey(place.hive, copy)) {
                            lack.take(machine.registry, place.hive, copy);
                        }
                    }
                };
                return whole(machine);
            };
            runner_.Run(CommandOf(fault, std::string("copies ") + lack.what));
        }
    }
}

// Items of every place, live; of each place also a held one. Of a place that holds values, the
// first `kinds` of them.
void DeleteEach(FaultRunner& runner, const Circumstances& on, std::size_t kinds,
                const std::optional<std::uint64_t>& freeBytes = {}) {
    for (const ListCase* list : AllLists) {
        for (const PlaceCase& place : list->places) {
            for (std::size_t kind = 0; kind < (list->values ? kinds : 1); ++kind) {
                runner.Run(CommandOf(Deleting(*list, place, true, on, kind, freeBytes), on.name));
            }
            runner.Run(CommandOf(Deleting(*list, place, false, on, 0, freeBytes), on.name));
        }
    }
}

TEST_F(BrowserFaults, BringBackEveryItemThatIsDeleted) {
    DeleteEach(runner_, AllCircumstances[0], AllHardValues().size());
    DeleteEach(runner_, AllCircumstances[2], 1);
}

TEST_F(BrowserFaults, BringBackEveryItemThatIsDeletedWhileTheDiskFillsUp) {
    DeleteEach(runner_, {"a full disk", NamedSystem::WindowsXp, true}, 1, 0);
    DeleteEach(runner_, {"a disk that fills up", NamedSystem::WindowsXp, true}, 1, 80);
}

}  // namespace
}  // namespace velkarix
