// Switching items of the browser page off and on, and deleting them.
#include <cstdint>
#include <optional>
#include <string>

#include "tests/browser/HardItems.h"
#include "tests/faults/BrowserFaults.h"
#include "tests/faults/BrowserScenes.h"
#include "tests/faults/FaultTable.h"

namespace velkarix {
namespace {

using Scenes = std::vector<FaultScene>;

void AddMoves(const ListCase& list, ItemAction action, Scenes& scenes) {
    for (const Circumstances& on : AllCircumstances) {
        if (list.values && !on.forValues) continue;
        if (action == ItemAction::Enable && !on.forEnable) continue;
        for (std::size_t group = 0; group < GroupsOf(list); ++group) {
            scenes.push_back(SceneOf(Moving(list, action, on, group), on.name));
        }
    }
}

// A copy that the system calls whole and that lacks something.
struct Lack {
    const char* what;
    void (*take)(MemoryHives& hives, Hive hive, const std::string& copy);
};
constexpr Lack Lacks[] = {
    {"copies short of a key",
     [](MemoryHives& hives, Hive hive, const std::string& copy) {
         hives.RemoveKey(hive, copy + "\\Empty");
     }},
    {"copies short of a byte",
     [](MemoryHives& hives, Hive hive, const std::string& copy) {
         hives.SetRaw(hive, copy + "\\www\\Deepest", "Large", registryType::Binary,
                      Bytes(4999, 'x'));
     }},
    {"copies of another type",
     [](MemoryHives& hives, Hive hive, const std::string& copy) {
         hives.SetRaw(hive, copy + "\\www\\Deepest", "Unknown", registryType::Binary, {9, 8, 7, 6});
     }},
};

void AddShortCopies(const ListCase& list, Scenes& scenes) {
    for (const Lack& lack : Lacks) {
        BrowserFault fault = Moving(list, ItemAction::Disable, AllCircumstances[0], 0);
        fault.prepare = [&list, lack, whole = fault.prepare](MemoryMachine& machine) {
            machine.registry.afterCopy = [&list, lack, &machine] {
                for (const PlaceCase& place : list.places) {
                    const std::string copy = place.held + std::string("\\") + ItemName(list, 'A');
                    if (machine.registry.HasKey(place.hive, copy)) {
                        lack.take(machine.registry, place.hive, copy);
                    }
                }
            };
            return whole(machine);
        };
        scenes.push_back(SceneOf(fault, lack.what));
    }
}

Scenes MoveScenes(const ListCase& list, ItemAction action) {
    Scenes scenes;
    AddMoves(list, action, scenes);
    if (action == ItemAction::Disable && !list.values) AddShortCopies(list, scenes);
    // One list of keys and one of values: there the moves of many are made of the same steps.
    if (&list == &Domains || &list == &Toolbars) scenes.push_back(ManyScene(list, action));
    return scenes;
}

// Items of every place, live; of each place also a held one. Of a place that holds values, the
// first `kinds` of them.
void AddDeletions(const ListCase& list, const Circumstances& on, std::size_t kinds,
                  const std::optional<std::uint64_t>& freeBytes, Scenes& scenes) {
    for (const PlaceCase& place : list.places) {
        for (std::size_t kind = 0; kind < (list.values ? kinds : 1); ++kind) {
            scenes.push_back(SceneOf(Deleting(list, place, true, on, kind, freeBytes), on.name));
        }
        scenes.push_back(SceneOf(Deleting(list, place, false, on, 0, freeBytes), on.name));
    }
}

Scenes DeletionScenes(const ListCase& list) {
    Scenes scenes;
    AddDeletions(list, AllCircumstances[0], AllHardValues().size(), {}, scenes);
    AddDeletions(list, AllCircumstances[2], 1, {}, scenes);
    AddDeletions(list, {"a full disk", NamedSystem::WindowsXp, true}, 1, 0, scenes);
    AddDeletions(list, {"a disk that fills up", NamedSystem::WindowsXp, true}, 1, 80, scenes);
    return scenes;
}

std::string CommandOf(const char* button) {
    return std::string("frmIE.") + button + "_Click";
}

}  // namespace

std::vector<FaultRow> BrowserItemRows() {
    std::vector<FaultRow> rows;
    for (const ListCase* list : AllLists) {
        rows.push_back(
            {CommandOf(list->disable), [list] { return MoveScenes(*list, ItemAction::Disable); }});
        rows.push_back(
            {CommandOf(list->enable), [list] { return MoveScenes(*list, ItemAction::Enable); }});
        rows.push_back({CommandOf(list->remove), [list] { return DeletionScenes(*list); }});
    }
    return rows;
}

}  // namespace velkarix
