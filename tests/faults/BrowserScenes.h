// What stands on the machine for the browser page's rows of the table of faults.
#pragma once

#include <cstdint>
#include <optional>

#include "tests/faults/BrowserFaults.h"

namespace velkarix {

struct Circumstances {
    const char* name;
    NamedSystem system;
    bool hasCopyKey;
    bool forValues = true;   // whether a move of values can differ there from the others
    bool forEnable = false;  // moves back are made of the same steps: not everywhere
};
inline constexpr Circumstances AllCircumstances[] = {
    {"NT", NamedSystem::WindowsXp, true, true, true},
    {"NT without a copy of its own", NamedSystem::WindowsNt40, false, false},
    {"95", NamedSystem::Windows98, true},
    {"95 without a copy of its own", NamedSystem::Windows95, false, false, true},
};

void Become(MemoryMachine& machine, const Circumstances& circumstances);

// Hard items in each place of the list; with the first group of them also an item that was half
// moved before, two namesakes, and items that don't take part. A list of values has several groups:
// a call in trouble costs a move of all that are there.
BrowserFault Moving(const ListCase& list, ItemAction action, const Circumstances& on,
                    std::size_t group);
std::size_t GroupsOf(const ListCase& list);

// Two hundred items in one place.
FaultScene ManyScene(const ListCase& list, ItemAction action);

// One hard item is deleted where it is; of values, the one of the number `kind`.
BrowserFault Deleting(const ListCase& list, const PlaceCase& place, bool enabled,
                      const Circumstances& on, std::size_t kind,
                      const std::optional<std::uint64_t>& freeBytes);

}  // namespace velkarix
