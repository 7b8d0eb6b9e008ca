#include "tests/faults/BrowserScenes.h"

#include <algorithm>
#include <string>
#include <vector>

#include "tests/browser/HardItems.h"

namespace velkarix {
namespace {

constexpr std::size_t GroupSize = 4;

// Beside the items that take part: one in each place that isn't ticked and one in the other state.
void PutBystanders(MemoryMachine& machine, const ListCase& list, bool enabled,
                   std::vector<FaultItem>& items) {
    for (const PlaceCase& place : list.places) {
        PutItem(machine, list, place, enabled, 'Y');
        items.push_back({&place, enabled, ItemName(list, 'Y'), false});
        PutItem(machine, list, place, !enabled, 'Z');
        items.push_back({&place, !enabled, ItemName(list, 'Z'), false});
    }
}

// One that an earlier move left in both places, whole and in part.
void PutHalfMoved(MemoryMachine& machine, const ListCase& list, bool enabled,
                  std::vector<FaultItem>& items) {
    const PlaceCase& place = list.places.front();
    const std::string name = ItemName(list, 'X');
    PutItem(machine, list, place, enabled, 'X');
    if (list.values) {
        PutItem(machine, list, place, !enabled, 'X');
    } else {
        machine.AddKey(place.hive,
                       (enabled ? place.held : place.live) + std::string("\\") + name + "\\www");
    }
    items.push_back({&place, enabled, name});
}

// Two of one name, in both places, that aren't the same.
void PutNamesakes(MemoryMachine& machine, const ListCase& list, bool enabled,
                  std::vector<FaultItem>& items) {
    const PlaceCase& place = list.places.front();
    const std::string name = ItemName(list, 'W');
    PutItem(machine, list, place, enabled, 'W');
    PutItem(machine, list, place, !enabled, 'W');
    const std::string holder = enabled ? place.held : place.live;
    if (list.values) {
        machine.SetValue(place.hive, holder, name, "another");
    } else {
        machine.SetDword(place.hive, holder + "\\" + name + "\\www", "ftp", 2);
    }
    items.push_back({&place, enabled, name});
    items.push_back({&place, !enabled, name, false, true});
}

void PutHardItems(MemoryMachine& machine, const ListCase& list, bool enabled, std::size_t group,
                  std::vector<FaultItem>& items) {
    MemoryHives& hives = machine.registry;
    const std::vector<RawValue> values = AllHardValues();
    for (const PlaceCase& place : list.places) {
        const std::string holder = enabled ? place.live : place.held;
        if (!list.values) {
            const std::string name = ItemName(list, 'A');
            PutHardTree(hives, place.hive, holder + "\\" + name);
            items.push_back({&place, enabled, name});
            continue;
        }
        const std::size_t end = std::min(values.size(), (group + 1) * GroupSize);
        for (std::size_t i = group * GroupSize; i < end; ++i) {
            const std::string name = ItemName(list, static_cast<char>('A' + i));
            hives.SetRaw(place.hive, holder, name, values[i].type, values[i].data);
            items.push_back({&place, enabled, name});
        }
    }
}

}  // namespace

void Become(MemoryMachine& machine, const Circumstances& circumstances) {
    machine.SetSystem(circumstances.system);
    machine.registry.SetHasCopyKey(circumstances.hasCopyKey);
}

BrowserFault Moving(const ListCase& list, ItemAction action, const Circumstances& on,
                    std::size_t group) {
    return {list, action, [&list, action, on, group](MemoryMachine& machine) {
                const bool enabled = action == ItemAction::Disable;
                std::vector<FaultItem> items;
                Become(machine, on);
                PutHardItems(machine, list, enabled, group, items);
                if (group != 0) return items;
                PutHalfMoved(machine, list, enabled, items);
                PutNamesakes(machine, list, enabled, items);
                PutBystanders(machine, list, enabled, items);
                return items;
            }};
}

std::size_t GroupsOf(const ListCase& list) {
    const std::size_t values = AllHardValues().size();
    return list.values ? (values + GroupSize - 1) / GroupSize : 1;
}

BrowserFault Deleting(const ListCase& list, const PlaceCase& place, bool enabled,
                      const Circumstances& on, std::size_t kind,
                      const std::optional<std::uint64_t>& freeBytes) {
    return {list, ItemAction::Delete, [=, &list, &place](MemoryMachine& machine) {
                Become(machine, on);
                machine.disk.SetFreeBytes(freeBytes);
                std::vector<FaultItem> items;
                PutHardItems(machine, list, enabled, kind / GroupSize, items);
                const std::string name = ItemName(list, static_cast<char>('A' + kind));
                for (FaultItem& item : items) {
                    item.takesPart = item.place == &place && item.name == name;
                }
                PutBystanders(machine, list, enabled, items);
                return items;
            }};
}

}  // namespace velkarix
